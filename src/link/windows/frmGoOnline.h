#pragma once

#include "Clock.h"

#include <QDialog>

#include <memory>

class DockingLink;
namespace Ui {
class frmGoOnline;
}

/// The connect dialog: opens the port, asks whether a docking station answers, and closes by
/// itself.
class frmGoOnline : public QDialog {
    Q_OBJECT
public:
    frmGoOnline(DockingLink& link, QWidget* parent);
    ~frmGoOnline() override;

    /// Sets the text, or adds a blank and a text to it, and shows it at once.
    void message(const QString& text);
    void AppendMessage(const QString& text);

    QString MyCommPort;                              ///< number of the port, as text
    QString MyCommSettings;                          ///< as CommPort::Settings wants them
    bool OK() const { return result() == Accepted; } ///< the port is open
    bool DockingDetected = false;                    ///< a docking station answered
    /// Handed back as it was given, or cleared. Nothing sets it, so every visit to the home page
    /// connects anew.
    bool Online = false;

    /// Runs by itself; there is nothing to cancel but a wait that lasts too long.
    void reject() override;

private:
    void Connect();

    std::unique_ptr<Ui::frmGoOnline> m_ui;
    DockingLink& m_link;
    Timer m_tmrStart;
    bool m_calledOff = false;
};
