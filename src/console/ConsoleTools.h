#pragma once

#include "MessageBox.h"

#include <QByteArray>
#include <QString>

class DockingLink;
class QJsonObject;

/// What all commands of the command line share.

/// One line on standard error, whatever line breaks the text has.
void Complain(const QString& text);

/// Writes to a file, or to standard output where the path is empty. Throws RunTimeError.
void WriteOut(const QByteArray& bytes, const QString& path = {});
void WriteLine(const QString& text);
void WriteJson(const QJsonObject& object);

/// Notices go to standard error, a line each. Questions are answered so that nothing is done, and
/// what then was not done is told by the command itself.
class ConsoleBoxes : public MessageBoxes {
public:
    ConsoleBoxes() { InstallMessageBoxes(this); }
    ~ConsoleBoxes() override { InstallMessageBoxes(nullptr); }

    MessageAnswer Show(const Message& message) override;
    /// The last notice; empty if there was none.
    const QString& Last() const { return m_last; }

private:
    QString m_last;
};

/// Opens the port and asks for the station; false once it has said why not. `device` is the path
/// of a serial device, or COM1 to COM8.
bool Connect(DockingLink& link, const QString& device);
