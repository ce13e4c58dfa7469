#pragma once

#include "Definitions.h"
#include "EditorDialog.h"
#include "RowListModel.h"

#include <memory>

class DockingLink;
namespace Ui {
class frmListEdit;
}

/// Edits one group: its name, its description and its buttons. Changes to buttons are written at
/// once. The caller writes the name and the description.
class frmListEdit : public EditorDialog {
    Q_OBJECT
public:
    frmListEdit(DockingLink& link, QWidget* parent);
    ~frmListEdit() override;

    int ID = 0; ///< the group's
    QString ListName;
    QString ListDesc;
    GroupType ItemType = UserGroup;
    bool AddMode = false;      ///< the name has the focus first, not the list
    QStringList ExistingNames; ///< names that may not be used; may include its own

    /// Shows the group and its buttons as they are now. Throws RunTimeError.
    void Update();
    /// The name check, without a message.
    bool EditedNameOK() const;

    int exec() override;

protected:
    void keyPressEvent(QKeyEvent* event) override;

private:
    QStringList Entered() const override;
    void KeepTyped();
    void EditButtonItem();
    void AddButtonItem();
    void DeleteButtonItem();
    void cmdOK_Click();

    std::unique_ptr<Ui::frmListEdit> m_ui;
    DockingLink& m_link;
    RowListModel m_buttons;
    QString m_receivedName;
};
