#pragma once

#include "Clock.h"

#include <QObject>
#include <QString>

#include <functional>

class DockingLink;

/// Notices that the device of a docking station has gone, and finds the station again when the
/// device is back.
///
/// It opens only the device on which the station was, and only while that is still the one chosen
/// for the port number. It sends nothing and opens nothing while `isBusy`. The check for a station
/// does not block: windows stay usable, and whoever closes the port ends the check.
class DockWatch : public QObject {
    Q_OBJECT
public:
    DockWatch(DockingLink& link, std::function<bool()> isBusy);

    /// A station has answered on the open port; from here on it is watched. If one was missed, it
    /// is found now.
    void Start();
    /// The program has tried to connect, and no station has answered. One that was there before may
    /// still be starting: it is looked for a few times, and again after its device has gone away
    /// and come back.
    void NotAnswered();
    /// Ends a check that runs: the program begins to connect by itself.
    void EndCheck() { EndCheck(false); }
    /// The operator has closed the port.
    void Stop();
    /// The device that has to be plugged in again; empty if none.
    QString GoneDevice() const { return m_gone ? m_device : QString(); }

signals:
    /// The device is gone, and the port is closed.
    void Gone(const QString& device);
    /// The device is back. Whether its station answers is not known yet.
    void Returned();
    /// The station answers again, on the open port.
    void Found(const QString& device);

private:
    void CheckDevice();
    void Lose();
    void TryToFind();
    void ReadAnswer();
    void EndCheck(bool found);

    DockingLink& m_link;
    std::function<bool()> m_isBusy;
    QString m_device;
    bool m_missing =
        false;            ///< the station has not answered since it was gone, or since the last try
    bool m_gone = false;  ///< the device was not there when it was looked for last
    int m_checksLeft = 0; ///< until the device goes away again
    int m_looksLeft = 0;  ///< for an answer; 0 while no check runs
    Timer m_tmrDevice;
    Timer m_tmrAnswer;
};
