#pragma once

#include "DateTime.h"
#include "ReaderSignals.h"

#include <QDialog>

#include <memory>

class DockingLink;
namespace Ui {
class frmSetTime;
}

/// Sends the docked reader a date and time and its signals, in one action, and keeps whether a
/// download sets the clock.
class frmSetTime : public QDialog {
    Q_OBJECT
public:
    frmSetTime(DockingLink& link, QWidget* parent);
    ~frmSetTime() override;

    /// Translates the dialog's controls.
    void Translate();

    /// Saves what is chosen, whatever closes the dialog.
    void done(int result) override;
    /// While a sending runs it is called off, and the dialog closes when that has ended.
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
