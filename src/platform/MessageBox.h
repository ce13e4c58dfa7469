#pragma once

#include <QList>
#include <QString>

/// All message boxes go through here: a real box in the station, a line on standard error in the
/// command line, a scripted answer in a test.

enum class MessageKind { Warning, Critical, Information, Question };
enum class MessageButtons { Ok, OkCancel, YesNo, RetryIgnore };
enum class MessageAnswer { Ok, Cancel, Yes, No, Retry, Ignore };

struct Message {
    QString text;
    QString caption = {};
    MessageKind kind = MessageKind::Warning;
    MessageButtons buttons = MessageButtons::Ok;
    /// The words on the buttons, in the order of their names in MessageButtons.
    QList<QString> buttonTexts = {};
    /// The cause and the next step, as a paragraph below the text; may be empty.
    QString advice = {};
    /// What the text goes on to say about its buttons, for a box that has some; may be empty.
    QString aboutButtons = {};
};

class MessageBoxes {
public:
    virtual ~MessageBoxes() = default;
    /// Returns when the box has been answered. Closing it, or Escape, means its last button.
    virtual MessageAnswer Show(const Message& message) = 0;
};

/// Replaces what answered before; not owned. Null restores the default, which writes the text to
/// standard error and gives the answer that changes nothing (HarmlessAnswer).
void InstallMessageBoxes(MessageBoxes* boxes);

/// An untranslated box.
MessageAnswer MsgBox(const QString& text, const QString& caption, MessageKind kind,
                     MessageButtons buttons = MessageButtons::Ok);
MessageAnswer ShowMessage(const Message& message);

/// The answer that changes nothing: Ok, No or Ignore. (Only the error dialog has OK and Cancel, and
/// its Cancel ends the program.)
MessageAnswer HarmlessAnswer(MessageButtons buttons);
/// The English words on the buttons, first to last.
QList<QString> ButtonWords(MessageButtons buttons);
