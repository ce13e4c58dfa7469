#include "EditorDialog.h"

#include "mTranslations.h"

void EditorDialog::reject() {
    if (m_unchanged.value_or(Entered()) == Entered() ||
        IvMessageBox(Translate("Your changes have not been saved. Discard them?"),
                     MessageKind::Question, MessageButtons::YesNo) == MessageAnswer::Yes)
        QDialog::reject();
}

void EditorDialog::showEvent(QShowEvent* event) {
    if (!m_unchanged)
        m_unchanged = Entered();
    QDialog::showEvent(event);
}
