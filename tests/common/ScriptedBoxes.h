#pragma once

#include "MessageBox.h"

#include <QStringList>

/// Takes the place of the operator: keeps what was shown and gives the answers it was handed, then
/// the harmless ones.
class ScriptedBoxes : public MessageBoxes {
public:
    ScriptedBoxes() { InstallMessageBoxes(this); }
    ~ScriptedBoxes() override { InstallMessageBoxes(nullptr); }

    MessageAnswer Show(const Message& message) override {
        Messages += message;
        return Answers.isEmpty() ? HarmlessAnswer(message.buttons) : Answers.takeFirst();
    }
    /// The texts shown since the last call.
    QStringList TakeTexts() {
        QStringList texts;
        for (const Message& message : std::exchange(Messages, {}))
            texts += message.text;
        return texts;
    }

    QList<Message> Messages;
    QList<MessageAnswer> Answers;
};
