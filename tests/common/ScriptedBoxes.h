#pragma once

#include "MessageBox.h"

#include <QStringList>

#include <functional>
#include <utility>

/// Answers message boxes in place of the operator and keeps what they showed. Gives `Answers` in
/// order, then harmless answers.
class ScriptedBoxes : public MessageBoxes {
public:
    ScriptedBoxes() { InstallMessageBoxes(this); }
    ~ScriptedBoxes() override { InstallMessageBoxes(nullptr); }

    MessageAnswer Show(const Message& message) override {
        Messages += message;
        if (Meanwhile && message.kind == MessageKind::Question)
            std::exchange(Meanwhile, {})();
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
    /// Called while the next question is open.
    std::function<void()> Meanwhile;
};
