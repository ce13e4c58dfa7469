#include "ConsoleTools.h"

#include "DockingLink.h"
#include "OutputFile.h"
#include "RunTimeError.h"
#include "mDeclareGlobals.h"
#include "mTranslations.h"

#include <QFileInfo>
#include <QJsonDocument>
#include <QJsonObject>
#include <QRegularExpression>

#include <algorithm>
#include <cstdio>

void Complain(const QString& text) {
    QString plain = text.simplified();
    // A terminal would obey an escape sequence.
    std::replace_if(
        plain.begin(), plain.end(), [](QChar c) { return c.category() == QChar::Other_Control; },
        u'?');
    const QByteArray line = (plain + u'\n').toUtf8();
    std::fwrite(line.constData(), 1, static_cast<std::size_t>(line.size()), stderr);
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

void WriteLine(const QString& text) { WriteOut(text.toUtf8() + '\n'); }

void WriteJson(const QJsonObject& object) { WriteOut(QJsonDocument(object).toJson()); }

MessageAnswer ConsoleBoxes::Show(const Message& message) {
    if (message.buttons != MessageButtons::YesNo) {
        Complain(message.text);
        m_last = message.text;
    }
    return HarmlessAnswer(message.buttons);
}

bool Connect(DockingLink& link, const QString& device) {
    static const QRegularExpression portName(QStringLiteral("^COM([1-8]):?$"),
                                             QRegularExpression::CaseInsensitiveOption);
    const auto match = portName.match(device);
    if (!match.hasMatch())
        OverrideDevice(QFileInfo::exists(device) ? QFileInfo(device).absoluteFilePath() : device);
    if (!link.OpenPort(match.hasMatch() ? match.captured(1).toInt() : 1)) {
        Complain(device + QStringLiteral(": ") + Translate("Could not open the com port.") + u' ' +
                 Translate("Check settings and try again."));
        return false;
    }
    gDockingDetected = link.DetectStation();
    if (!gDockingDetected)
        Complain(Translate("Could not connect to the docking station.") + u' ' +
                 Translate("Check hardware and settings and try again."));
    return gDockingDetected;
}
