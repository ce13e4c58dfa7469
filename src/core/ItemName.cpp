#include "ItemName.h"

#include "mTranslations.h"

QString ItemNameFault(const QString& name, const QStringList& existingNames) {
    if (existingNames.contains(name))
        return Translate("That name is already used.  Please enter another name");
    if (name.isEmpty())
        return Translate("You must enter a name for this item");
    return {};
}
