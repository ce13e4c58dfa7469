#pragma once

#include "NameFault.h"

class QLineEdit;

/// True if the field's text, trimmed, may be the name (NameFault.h). If not, tells the operator why
/// and selects the field's text.
bool AcceptName(Named what, QLineEdit& field, const QStringList& existingNames,
                const QString& received = {});

/// The same for a description. It may be empty.
bool AcceptDescription(QLineEdit& field);
