#include "NameField.h"

#include "WindowTools.h"
#include "mTranslations.h"

#include <QLineEdit>

bool AcceptName(Named what, QLineEdit& field, const QStringList& existingNames,
                const QString& received) {
    const QString fault = NameFault(what, field.text().trimmed(), existingNames, received);
    if (fault.isEmpty())
        return true;
    IvMessageBox(fault);
    FocusAndSelect(field);
    return false;
}
