#include "NameField.h"

#include "WindowTools.h"
#include "mTranslations.h"

#include <QLineEdit>

namespace {

bool Accept(QLineEdit& field, const QString& fault) {
    if (fault.isEmpty())
        return true;
    IvMessageBox(fault);
    FocusAndSelect(field);
    return false;
}

} // namespace

bool AcceptName(Named what, QLineEdit& field, const QStringList& existingNames,
                const QString& received) {
    QString fault = NameFault(what, field.text().trimmed(), existingNames, received);
    // The add dialogs keep blanks around a name, so a name with the same blanks may exist too.
    if (fault.isEmpty() && field.text() != received)
        fault = NameFault(what, field.text(), existingNames, received);
    return Accept(field, fault);
}

bool AcceptDescription(QLineEdit& field) { return Accept(field, TextFault(field.text())); }
