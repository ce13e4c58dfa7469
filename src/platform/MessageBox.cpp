#include "MessageBox.h"

#include <QTextStream>

#include <cstdio>

namespace {

class StandardErrorBoxes : public MessageBoxes {
public:
    MessageAnswer Show(const Message& message) override {
        QTextStream(stderr) << message.text << Qt::endl;
        if (!message.advice.isEmpty())
            QTextStream(stderr) << message.advice << Qt::endl;
        return HarmlessAnswer(message.buttons);
    }
};

StandardErrorBoxes g_standardError;
MessageBoxes* g_installed = &g_standardError;

} // namespace

void InstallMessageBoxes(MessageBoxes* boxes) { g_installed = boxes ? boxes : &g_standardError; }

MessageAnswer ShowMessage(const Message& message) { return g_installed->Show(message); }

MessageAnswer MsgBox(const QString& text, const QString& caption, MessageKind kind,
                     MessageButtons buttons) {
    return ShowMessage({text, caption, kind, buttons, ButtonWords(buttons)});
}

MessageAnswer HarmlessAnswer(MessageButtons buttons) {
    switch (buttons) {
    case MessageButtons::OkCancel:
        return MessageAnswer::Ok;
    case MessageButtons::YesNo:
        return MessageAnswer::No;
    case MessageButtons::RetryIgnore:
        return MessageAnswer::Ignore;
    case MessageButtons::Ok:
        break;
    }
    return MessageAnswer::Ok;
}

QList<QString> ButtonWords(MessageButtons buttons) {
    switch (buttons) {
    case MessageButtons::OkCancel:
        return {QStringLiteral(QT_TR_NOOP("OK")), QStringLiteral(QT_TR_NOOP("Cancel"))};
    case MessageButtons::YesNo:
        return {QStringLiteral(QT_TR_NOOP("Yes")), QStringLiteral(QT_TR_NOOP("No"))};
    case MessageButtons::RetryIgnore:
        return {QStringLiteral(QT_TR_NOOP("Retry")), QStringLiteral(QT_TR_NOOP("Ignore"))};
    case MessageButtons::Ok:
        break;
    }
    return {QStringLiteral(QT_TR_NOOP("OK"))};
}
