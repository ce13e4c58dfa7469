#include "DockWatch.h"

#include "DockingLink.h"
#include "mDeclareGlobals.h"
#include "mErrorHandler.h"
#include "mWardlock.h"

namespace {

constexpr int DeviceInterval = 1000; ///< ms
constexpr int AnswerInterval = 300;
/// As long as DockingLink::DetectStation waits.
constexpr int Looks = 5;
/// A station may need some time after it is plugged in. A device that is not a station is left
/// alone after that, until it goes away and comes back.
constexpr int Checks = 5;

} // namespace

DockWatch::DockWatch(DockingLink& link, std::function<bool()> isBusy)
    : m_link(link), m_isBusy(std::move(isBusy)), m_tmrDevice(DeviceInterval),
      m_tmrAnswer(AnswerInterval) {
    connect(&m_link.comPort(), &CommPort::Lost, this, [this] {
        if (!m_device.isEmpty() && !m_missing)
            Lose();
    });
    connect(&m_tmrDevice, &Timer::Tick, this, &DockWatch::CheckDevice);
    connect(&m_tmrAnswer, &Timer::Tick, this, &DockWatch::ReadAnswer);
}

void DockWatch::Start() {
    const bool back = m_missing && !m_device.isEmpty();
    m_device = DeviceOfPort(m_link.comPort().Number);
    m_missing = m_gone = false;
    m_looksLeft = 0;
    m_tmrAnswer.SetEnabled(false);
    m_tmrDevice.SetEnabled(true);
    if (back)
        emit Found(m_device);
}

void DockWatch::NotAnswered() {
    m_missing = true;
    m_gone = m_gone && !DeviceExists(m_device);
    m_checksLeft = Checks;
}

void DockWatch::Stop() {
    m_device.clear();
    m_gone = false;
    m_looksLeft = 0;
    m_tmrAnswer.SetEnabled(false);
    m_tmrDevice.SetEnabled(false);
}

void DockWatch::CheckDevice() {
    if (!DeviceExists(m_device)) {
        if (!m_gone)
            Lose();
        return;
    }
    if (std::exchange(m_gone, false))
        emit Returned();
    if (m_missing && m_looksLeft == 0 && m_checksLeft > 0 && !m_isBusy())
        TryToFind();
}

void DockWatch::Lose() {
    m_missing = m_gone = true;
    m_checksLeft = Checks;
    m_link.ClosePort();
    emit Gone(m_device);
}

void DockWatch::TryToFind() {
    if (DeviceOfPort(m_link.comPort().Number) != m_device)
        return;
    m_link.ClosePort(); // a try to which no station answered leaves it open
    if (!m_link.OpenPort(m_link.comPort().Number))
        return;
    --m_checksLeft;
    m_looksLeft = Looks;
    m_link.InBuffer().Clear();
    gCommActive = true;
    m_tmrAnswer.SetEnabled(true);
    if (!IgnoringErrors([this] {
            m_link.comPort().Output(BuildPacket(Wire::Header0, Wire::Header1, Wire::Header2,
                                                Wire::Header3, Wire::Header4, CmdDetect()));
        }))
        EndCheck(false);
}

void DockWatch::ReadAnswer() {
    if (!m_link.comPort().PortOpen()) { // lost again, or the program connects by itself
        EndCheck(false);
        return;
    }
    QByteArray packet;
    bool received = false;
    do {
        m_link.InBuffer().GetPacket(packet, received);
        if (received && ByteAt(packet, Wire::PayloadOffset) == Wire::ReplyDetect) {
            EndCheck(true);
            return;
        }
    } while (received);
    if (m_looksLeft == 1)
        EndCheck(false);
    else
        --m_looksLeft;
}

void DockWatch::EndCheck(bool found) {
    if (std::exchange(m_looksLeft, 0) == 0)
        return;
    m_tmrAnswer.SetEnabled(false);
    m_link.InBuffer().Clear();
    gCommActive = false;
    if (!found) {
        m_link.ClosePort();
        return;
    }
    m_missing = m_gone = false;
    emit Found(m_device);
}
