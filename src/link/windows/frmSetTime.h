#pragma once

#include "DateTime.h"
#include "ReaderSignals.h"

#include <QDialog>

#include <memory>

class DockingLink;
namespace Ui {
class frmSetTime;
}

/// Sends a date and time and the signals to the docked reader, in one action. Also keeps the choice
/// whether a download sets the clock.
class frmSetTime : public QDialog {
    Q_OBJECT
public:
    frmSetTime(DockingLink& link, QWidget* parent);
    ~frmSetTime() override;

    /// Translates the dialog's controls.
    void Translate();

    /// Saves the choices, however the dialog is closed.
    void done(int result) override;
    /// Cancels a sending that is running; the dialog then closes as soon as it has ended.
    void reject() override;

private:
    void Form_Load();
    void cmdSendRealTime_Click();
    void Send();
    ReaderSignals ChosenSignals() const;
    DateTime ChosenMoment() const;
    void SetSending(bool sending);

    std::unique_ptr<Ui::frmSetTime> m_ui;
    DockingLink& m_link;
    bool m_sending = false;
};
