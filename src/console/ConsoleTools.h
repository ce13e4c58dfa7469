#pragma once

#include "MessageBox.h"

#include <QByteArray>
#include <QString>

class QJsonObject;

/// What all commands share.

/// One line on standard error, without the line breaks and control characters of the text.
void Complain(const QString& text);

/// The operator's password, from the environment variable WARDLOCK_PASSWORD.
QString GivenPassword();
/// Says that it is wrong.
void ComplainOfLogin();

/// Writes to a file, or to standard output if the path is empty. Throws RunTimeError.
void WriteOut(const QByteArray& bytes, const QString& path = {});
/// To standard output, with the line breaks of the text but without its other control characters.
void WriteLine(const QString& text);
void WriteJson(const QJsonObject& object);

/// While it exists, notices go to standard error, one line each. Questions get the answer that
/// changes nothing; the command itself then says what was not done.
class ConsoleBoxes : public MessageBoxes {
public:
    ConsoleBoxes() { InstallMessageBoxes(this); }
    ~ConsoleBoxes() override { InstallMessageBoxes(nullptr); }

    MessageAnswer Show(const Message& message) override;
    /// The last notice, without its advice; empty if there was none.
    const QString& Last() const { return m_last; }

private:
    QString m_last;
};

/// Translates the text and complains, unless a notice has already said what went wrong. Returns
/// what was said.
QString ComplainUnlessSaid(const ConsoleBoxes& boxes, const char* text);
