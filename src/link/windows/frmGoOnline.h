#pragma once

#include "Clock.h"

#include <QDialog>

#include <memory>

class DockingLink;
namespace Ui {
class frmGoOnline;
}

/// The connect dialog: opens the port, checks whether a docking station answers, and then
/// closes by itself.
class frmGoOnline : public QDialog {
    Q_OBJECT
public:
    frmGoOnline(DockingLink& link, QWidget* parent);
    ~frmGoOnline() override;

    /// Sets the text, or adds a blank and more text, and shows it at once.
    void message(const QString& text);
    void AppendMessage(const QString& text);

    QString MyCommPort;                              ///< the port number, as text
    QString MyCommSettings;                          ///< for CommPort::Settings
    bool OK() const { return result() == Accepted; } ///< the port is open
    bool DockingDetected = false;                    ///< a docking station answered
    /// Set by the caller; cleared if the port cannot be opened. It is never set here, so every
    /// visit to the home page connects again.
    bool Online = false;

    /// Cancels only a wait that lasts too long.
    void reject() override;

private:
    void Connect();

    std::unique_ptr<Ui::frmGoOnline> m_ui;
    DockingLink& m_link;
    Timer m_tmrStart;
    bool m_calledOff = false;
};
