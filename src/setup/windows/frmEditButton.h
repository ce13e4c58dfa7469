#pragma once

#include "EditorDialog.h"

#include <QStringList>

#include <memory>

namespace Ui {
class frmEditButton;
}

/// Renames one button.
class frmEditButton : public EditorDialog {
    Q_OBJECT
public:
    explicit frmEditButton(QWidget* parent);
    ~frmEditButton() override;

    void SetCaption(const QString& caption) { setWindowTitle(caption); }
    /// Chooses the dialog's picture by its name.
    void SetIcon(const QString& name);
    QString EditName; ///< before: the present name; after OK: the new one, trimmed
    QString Desc;
    QStringList ExistingNames; ///< names that may not be used; may include the button's own

    int exec() override;

private:
    QStringList Entered() const override;
    void cmdOK_Click();

    std::unique_ptr<Ui::frmEditButton> m_ui;
};
