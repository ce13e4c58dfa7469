#pragma once

#include <QSet>
#include <QString>

#include <optional>

class DockingLink;

/// Listens for buttons that are presented to the docked reader, and knows which codes are in use.
/// While it lives the link collects what arrives.
class ButtonCapture {
public:
    explicit ButtonCapture(DockingLink& link);
    ~ButtonCapture();
    ButtonCapture(const ButtonCapture&) = delete;
    ButtonCapture& operator=(const ButtonCapture&) = delete;

    /// To be called on a timer. The code of a button that was presented since the last call, six
    /// upper-case hexadecimal digits; empty where there was none. Other frames are dropped, and so
    /// is the beginning of a frame whose rest does not come.
    QString TakeCode();

    /// False once the docking station has gone: no button will come any more.
    bool LineIsOpen() const;

    /// True for a code that no button has. Where the store could not be read none is free.
    bool IsFree(const QString& code) const { return m_codes && !m_codes->contains(code); }

private:
    DockingLink& m_link;
    std::optional<QSet<QString>> m_codes;
    qsizetype m_waiting = 0; ///< bytes of an unfinished frame at the last call
    int m_idleCalls = 0;     ///< calls since then that found no more
};

/// A button code as it was typed: trimmed, in upper case. Empty if it is not six hexadecimal
/// digits.
QString TypedButtonCode(const QString& text);
