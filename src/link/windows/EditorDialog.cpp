#include "EditorDialog.h"

#include "mTranslations.h"

EditorDialog::EditorDialog(QWidget* parent, Placed placed) : QDialog(parent) {
    RememberPlace(*this, placed);
}

void EditorDialog::reject() {
    if (m_unchanged.value_or(Entered()) == Entered()) {
        QDialog::reject();
    } else if (IvMessageBox(Translate("Your changes have not been saved. Discard them?"),
                            MessageKind::Question, MessageButtons::YesNo) == MessageAnswer::Yes) {
        QDialog::reject();
        // Two windows close at the same time. Some window managers then lose the keyboard focus.
        if (parentWidget())
            parentWidget()->activateWindow();
    }
}

void EditorDialog::showEvent(QShowEvent* event) {
    if (!m_unchanged)
        m_unchanged = Entered();
    QDialog::showEvent(event);
}
