#pragma once

#include "ButtonCapture.h"
#include "Clock.h"
#include "EditorDialog.h"

#include <QStringList>

#include <cstdint>
#include <memory>

namespace Ui {
class frmAddButton;
}

/// Captures a new button and asks for its name. The button is presented to the docked reader, or
/// its code is typed.
class frmAddButton : public EditorDialog {
    Q_OBJECT
public:
    frmAddButton(DockingLink& link, QWidget* parent);
    ~frmAddButton() override;

    std::uint8_t ButtonType = 0; ///< the group's type, for the caller's own use
    QString ButtonName;          ///< the preset name, then the one entered, as typed
    QString Desc;                ///< the same for the description
    QStringList ExistingNames;   ///< names that may not be used
    /// The captured code, six upper-case hexadecimal digits. Empty if there is none or it is in
    /// use.
    const QString& DallasID() const { return m_dallasId; }
    /// The window's icon, by its name.
    void SetIcon(const QString& name);

    int exec() override;

private:
    QStringList Entered() const override;
    void Form_Load();
    void tmrGetID_Timer();
    void ShowCode(const QString& code);
    void cmdManual_Click();
    void cmdOK_Click();

    std::unique_ptr<Ui::frmAddButton> m_ui;
    ButtonCapture m_capture;
    Timer m_tmrGetID;
    QString m_lastCode;
    QString m_dallasId;
};
