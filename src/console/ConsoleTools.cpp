#include "ConsoleTools.h"

#include "Format.h"
#include "OutputFile.h"
#include "RunTimeError.h"
#include "mTranslations.h"

#include <QJsonDocument>
#include <QJsonObject>

#include <cstdio>

void Complain(const QString& text) {
    const QByteArray line = (WithoutControls(text.simplified()) + u'\n').toUtf8();
    std::fwrite(line.constData(), 1, static_cast<std::size_t>(line.size()), stderr);
}

QString GivenPassword() { return qEnvironmentVariable("WARDLOCK_PASSWORD"); }

void ComplainOfLogin() {
    const bool given = qEnvironmentVariableIsSet("WARDLOCK_PASSWORD");
    Complain(Translate("The User Name / Password are incorrect. Please try again.") +
             (given ? QString() : QStringLiteral(" (WARDLOCK_PASSWORD is not set)")));
}

void WriteOut(const QByteArray& bytes, const QString& path) {
    if (path.isEmpty()) {
        if (std::fwrite(bytes.constData(), 1, static_cast<std::size_t>(bytes.size()), stdout) !=
                static_cast<std::size_t>(bytes.size()) ||
            std::fflush(stdout) != 0)
            throw RunTimeError(RunTimeErrorNumber::FileNotFound,
                               QStringLiteral("standard output cannot be written"));
        return;
    }
    OutputFile file(path);
    file.Write(bytes);
    file.Commit();
}

void WriteLine(const QString& text) {
    QStringList lines = text.split(u'\n');
    for (QString& line : lines)
        line = WithoutControls(line);
    WriteOut(lines.join(u'\n').toUtf8() + '\n');
}

void WriteJson(const QJsonObject& object) { WriteOut(QJsonDocument(object).toJson()); }

MessageAnswer ConsoleBoxes::Show(const Message& message) {
    if (message.buttons != MessageButtons::YesNo) {
        const QString between = message.text.endsWith(u'.') || message.advice.isEmpty()
                                    ? QStringLiteral(" ")
                                    : QStringLiteral(": ");
        Complain(message.text + between + message.advice);
        m_last = message.text;
    }
    return HarmlessAnswer(message.buttons);
}

QString ComplainUnlessSaid(const ConsoleBoxes& boxes, const char* text) {
    if (!boxes.Last().isEmpty())
        return boxes.Last();
    QString translated = Translate(text);
    Complain(translated);
    return translated;
}
