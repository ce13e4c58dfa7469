#include "LinkState.h"

LinkState::LinkState(std::function<bool()> isBusy) : m_watch(m_link, std::move(isBusy)) {
    connect(&m_watch, &DockWatch::Gone, this, [this](const QString& device) {
        Publish(false, false);
        emit StationGone(device);
    });
    connect(&m_watch, &DockWatch::Returned, this, [this] { Publish(m_online, gDockingDetected); });
    connect(&m_watch, &DockWatch::Found, this, [this](const QString& device) {
        Publish(m_online, true);
        emit StationFound(device);
    });
}

void LinkState::PrepareToConnect() {
    m_watch.EndCheck();
    m_link.ClosePort();
}

void LinkState::Set(bool online, bool detected) {
    if (detected)
        m_watch.Start();
    else
        m_watch.NotAnswered();
    Publish(online, detected);
}

void LinkState::Close() {
    m_watch.Stop();
    m_link.ClosePort();
    Publish(false, false);
}

void LinkState::Publish(bool online, bool detected) {
    m_online = online;
    gDockingDetected = detected;
    emit Changed(detected);
}
