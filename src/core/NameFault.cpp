#include "NameFault.h"

#include "mTranslations.h"

QString NameFault(Named what, const QString& name, const QStringList& existingNames,
                  const QString& received) {
    const bool group = what == Named::Group;
    if (name != received && existingNames.contains(name))
        return Translate(group ? "That name is already used.  Please enter another name."
                               : "That name is already used.  Please enter another name");
    if (name.isEmpty())
        return Translate(group ? "You must enter a name for this group"
                               : "You must enter a name for this item");
    return {};
}
