#pragma once

#include "MessageBox.h"
#include "RunTimeError.h"

/// Shows a failure in a box: "Error in MakeFakeData", and below it the number and the description.
inline void ShowDiagnosticError(const char* head, const RunTimeError& error) {
    MsgBox(QString::fromUtf8(head) + QStringLiteral("\nError # %1\n").arg(error.Number()) +
               error.Description(),
           {}, MessageKind::Warning);
}
