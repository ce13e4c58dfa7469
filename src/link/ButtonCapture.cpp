#include "ButtonCapture.h"

#include "DockingLink.h"
#include "LookUps.h"
#include "mDeclareGlobals.h"
#include "mWardlock.h"

#include <QRegularExpression>

namespace {

constexpr int CodeOffset = 12; ///< three bytes, lowest first
constexpr int LeastButtonFrame = CodeOffset + 3 + 1;
/// After this many calls without a new byte, the beginning of a frame is given up.
constexpr int Patience = 2;

QString ButtonCodeOf(const QByteArray& frame) {
    if (frame.size() < LeastButtonFrame || ByteAt(frame, Wire::PayloadOffset) != Wire::ReplyButton)
        return {};
    return Hex00(ByteAt(frame, CodeOffset + 2)) + Hex00(ByteAt(frame, CodeOffset + 1)) +
           Hex00(ByteAt(frame, CodeOffset));
}

} // namespace

ButtonCapture::ButtonCapture(DockingLink& link) : m_link(link) {
    gCommActive = true;
    m_link.InBuffer().Clear();
}

void ButtonCapture::ReadCodes() { m_codes = ButtonCodes(); }

ButtonCapture::~ButtonCapture() { gCommActive = false; }

bool ButtonCapture::LineIsOpen() const { return m_link.comPort().PortOpen(); }

QString ButtonCapture::TakeCode() {
    cInBuffer& buffer = m_link.InBuffer();
    QByteArray frame;
    bool received = false;
    buffer.GetPacket(frame, received);
    const qsizetype waiting = received ? 0 : buffer.Buffer().size();
    m_idleCalls = waiting == m_waiting ? m_idleCalls + 1 : 0;
    m_waiting = waiting;
    if (received || m_idleCalls >= Patience) {
        buffer.Clear();
        m_waiting = m_idleCalls = 0;
    }
    return received ? ButtonCodeOf(frame) : QString();
}

QString TypedButtonCode(const QString& text) {
    static const QRegularExpression sixDigits(QStringLiteral("\\A[0-9A-Fa-f]{6}\\z"));
    const QString code = text.trimmed();
    return sixDigits.match(code).hasMatch() ? code.toUpper() : QString();
}
