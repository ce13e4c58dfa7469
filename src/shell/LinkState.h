#pragma once

#include "DockingLink.h"

/// The main window's docking link, whether it is online, and whether a docking station has
/// answered. Only this class changes these two. Whatever needs a docking station is enabled or
/// disabled on Changed, or reads gDockingDetected, which this class keeps up to date.
class LinkState : public QObject {
    Q_OBJECT
public:
    DockingLink& Link() { return m_link; }
    bool Online() const { return m_online; }

    void Set(bool online, bool detected);
    /// Closes the port; the link is then offline.
    void Close();

    int Port = 1; ///< number of the serial port

signals:
    /// `detected`: there is a docking station to talk to.
    void Changed(bool detected);

private:
    DockingLink m_link;
    bool m_online = false;
};
