#include "NameFault.h"

#include "mTranslations.h"

#include <algorithm>

QString TextFault(const QString& text) {
    const auto isControl = [](QChar character) {
        const QChar::Category category = character.category();
        return category == QChar::Other_Control || category == QChar::Separator_Line ||
               category == QChar::Separator_Paragraph;
    };
    if (std::none_of(text.begin(), text.end(), isControl))
        return {};
    return Translate("A name or description cannot contain line breaks or other control "
                     "characters.");
}

QString NameFault(Named what, const QString& name, const QStringList& existingNames,
                  const QString& received) {
    const bool group = what == Named::Group;
    if (name != received && existingNames.contains(name))
        return Translate(group ? "That name is already used.  Please enter another name."
                               : "That name is already used.  Please enter another name");
    if (name.isEmpty())
        return Translate(group ? "You must enter a name for this group"
                               : "You must enter a name for this item");
    return TextFault(name);
}
