#pragma once

#include <QList>
#include <QString>

/// The one seam for message boxes: a real box in the station, a line on standard error in the
/// command line, a scripted answer in a test.

enum class MessageKind { Warning, Critical, Information, Question };
enum class MessageButtons { Ok, OkCancel, YesNo, RetryIgnore };
enum class MessageAnswer { Ok, Cancel, Yes, No, Retry, Ignore };

struct Message {
    QString text;
    QString caption;
    MessageKind kind = MessageKind::Warning;
    MessageButtons buttons = MessageButtons::Ok;
    /// What the buttons say, in the order of their names in MessageButtons.
    QList<QString> buttonTexts;
};

class MessageBoxes {
public:
    virtual ~MessageBoxes() = default;
    /// Returns when it has been answered. Closing a box answers as Escape would: with its last
    /// button.
    virtual MessageAnswer Show(const Message& message) = 0;
};

/// Takes the place of whatever answered before; not owned. Null restores the default, which writes
/// the text to standard error and gives the answer that does nothing.
void InstallMessageBoxes(MessageBoxes* boxes);

/// An untranslated box.
MessageAnswer MsgBox(const QString& text, const QString& caption, MessageKind kind,
                     MessageButtons buttons = MessageButtons::Ok);
MessageAnswer ShowMessage(const Message& message);

/// The answer that changes nothing: Ok, No or Ignore. (Of OK and Cancel the one error dialog goes
/// on with OK and ends the program with Cancel.)
MessageAnswer HarmlessAnswer(MessageButtons buttons);
/// The English words on the buttons, first to last.
QList<QString> ButtonWords(MessageButtons buttons);
