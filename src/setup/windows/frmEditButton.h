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
    /// The dialog's picture, by its name.
    void SetIcon(const QString& name);
    QString EditName; ///< as it is, then as entered, trimmed
    QString Desc;
    QStringList ExistingNames; ///< names that may not be used; the button's own may stand in it

    int exec() override;

private:
    QStringList Entered() const override;
    void cmdOK_Click();

    std::unique_ptr<Ui::frmEditButton> m_ui;
};
