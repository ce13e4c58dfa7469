#pragma once

#include "DockWatch.h"
#include "DockingLink.h"
#include "mDeclareGlobals.h"

/// The main window's docking link, whether it is online, and whether a docking station has
/// answered. Only this class changes these two. Whatever needs a docking station is enabled or
/// disabled on Changed, or reads gDockingDetected, which this class keeps up to date.
class LinkState : public QObject {
    Q_OBJECT
public:
    /// `isBusy`: a conversation may be running, so nothing may be sent or opened by itself.
    explicit LinkState(std::function<bool()> isBusy);

    DockingLink& Link() { return m_link; }
    bool Online() const { return m_online; }
    /// The device of a station that was there and has to be plugged in again; empty if none.
    QString GoneDevice() const { return m_watch.GoneDevice(); }

    /// Closes the port before the program connects.
    void PrepareToConnect();
    void Set(bool online, bool detected);
    /// Closes the port; the link is then offline.
    void Close();

    int Port = 1; ///< number of the serial port

signals:
    /// `detected`: there is a docking station to talk to.
    void Changed(bool detected);
    /// The device of the station has gone, or the station was found again on it. Comes after
    /// Changed.
    void StationGone(const QString& device);
    void StationFound(const QString& device);

private:
    void Publish(bool online, bool detected);

    DockingLink m_link;
    DockWatch m_watch;
    bool m_online = false;
};
