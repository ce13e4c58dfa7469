#pragma once

#include <QSet>
#include <QString>

#include <optional>

class DockingLink;

/// Listens for buttons that are presented to the docked reader, and knows which codes are in use.
/// While it exists, the link collects the bytes that arrive.
class ButtonCapture {
public:
    explicit ButtonCapture(DockingLink& link);
    ~ButtonCapture();
    ButtonCapture(const ButtonCapture&) = delete;
    ButtonCapture& operator=(const ButtonCapture&) = delete;

    /// Reads the codes in use from the store. Throws RunTimeError; then no code is free.
    void ReadCodes();

    /// Call it on a timer. Gives the code of a button that was presented since the last call, six
    /// upper-case hexadecimal digits, or an empty text. Other frames are dropped, and so is the
    /// beginning of a frame that is never completed.
    QString TakeCode();

    /// False once the docking station is disconnected: no more buttons will come.
    bool LineIsOpen() const;

    /// True for a code that no button has. If the codes could not be read, none is free.
    bool IsFree(const QString& code) const { return m_codes && !m_codes->contains(code); }

private:
    DockingLink& m_link;
    std::optional<QSet<QString>> m_codes;
    qsizetype m_waiting = 0; ///< bytes of an unfinished frame at the last call
    int m_idleCalls = 0;     ///< calls since then without a new byte
};

/// A typed button code, trimmed and in upper case. Empty if it is not six hexadecimal digits.
QString TypedButtonCode(const QString& text);
