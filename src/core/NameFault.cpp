#include "NameFault.h"

#include "mTranslations.h"

#include <algorithm>

namespace {

/// Ends a line, or reverses the rest of it.
bool IsControl(QChar character) {
    const QChar::Category category = character.category();
    const QChar::Direction direction = character.direction();
    return category == QChar::Other_Control || category == QChar::Separator_Line ||
           category == QChar::Separator_Paragraph ||
           (direction >= QChar::DirLRE && direction <= QChar::DirPDF &&
            direction != QChar::DirAL) ||
           (direction >= QChar::DirLRI && direction <= QChar::DirPDI);
}

} // namespace

bool HasControls(const QString& text) { return std::any_of(text.begin(), text.end(), IsControl); }

QString TextFault(const QString& text) {
    if (HasControls(text))
        return Translate("A name or description cannot contain line breaks or other control "
                         "characters.");
    if (text.size() > MostNameLetters)
        return Translate("A name or description can have at most 100 characters.");
    return {};
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
