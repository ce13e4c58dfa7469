#include "mErrorHandler.h"

#include "AppVersion.h"
#include "Application.h"
#include "Clock.h"
#include "Format.h"
#include "MessageBox.h"

#include <QFile>

#include <cstdlib>

void WriteLog(const QString& message) {
    const QString line = DefaultDateTimeText(Now()) + u'\t' + message + u'\n';
    QFile log(AppFile(QStringLiteral("error.log")));
    const QByteArray bytes = line.toUtf8();
    if (!log.open(QIODevice::Append | QIODevice::Text) || log.write(bytes) != bytes.size() ||
        !log.flush())
        MsgBox(QStringLiteral("Error saving to error log file\n") + message, {},
               MessageKind::Warning);
}

void ReportError(const QString& procedure, const RunTimeError& error, ErrorShow show) {
    const QString head = QStringLiteral("Error %1 in %2").arg(error.Number()).arg(procedure);
    WriteLog(head + QStringLiteral("\t(") + error.Description() + u')');
    if (show != ErrorShow::Dialog)
        return;
    const QString text = head +
                         QStringLiteral("\nwhile running %1.exe v%2.%3.%4\n\n")
                             .arg(AppExeName())
                             .arg(AppMajor())
                             .arg(Format(AppMinor(), QStringLiteral("00")))
                             .arg(AppRevision()) +
                         QStringLiteral("Error = '") + error.Description() + u'\'';
    const MessageButtons buttons = MessageButtons::OkCancel;
    const auto answer =
        ShowMessage({.text = text,
                     .caption = QStringLiteral("Error"),
                     .kind = MessageKind::Information,
                     .buttons = buttons,
                     .buttonTexts = ButtonWords(buttons),
                     .aboutButtons = QStringLiteral(
                         "\n (Click 'OK' to continue or 'Cancel' to exit the program) ")});
    if (answer == MessageAnswer::Cancel)
        EndProgram();
}

void ShowProcedureError(const QString& procedure, const RunTimeError& error) {
    MsgBox(QStringLiteral("Error %1 in procedure ").arg(error.Number()) + procedure +
               QStringLiteral(": ") + error.Description(),
           {}, MessageKind::Warning);
}

void EndProgram() { std::_Exit(EXIT_FAILURE); }
