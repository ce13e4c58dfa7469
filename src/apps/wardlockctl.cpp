#include "Console.h"
#include "FileReplacement.h"

#include <QGuiApplication>

#ifdef Q_OS_WIN
#include <shellapi.h>
#include <windows.h>
#endif

namespace {

/// Keeps a library's remarks, such as on a missing desktop, off standard error, which is for this
/// program's own messages. The trace is written only if it is switched on.
void OnlyTrace(QtMsgType type, const QMessageLogContext& context, const QString& text) {
    if (type == QtFatalMsg || qstrcmp(context.category, "wardlock.trace") == 0)
        fprintf(stderr, "%s\n", qPrintable(text));
}

QStringList Arguments([[maybe_unused]] int argc, [[maybe_unused]] char* argv[]) {
    QStringList arguments;
#ifdef Q_OS_WIN
    int count = 0;
    wchar_t** words = CommandLineToArgvW(GetCommandLineW(), &count); // Unicode, which argv is not
    for (int i = 1; i < count; ++i)
        arguments += QString::fromWCharArray(words[i]);
    LocalFree(words);
#else
    for (int i = 1; i < argc; ++i)
        arguments += QString::fromLocal8Bit(argv[i]);
#endif
    return arguments;
}

} // namespace

int main(int argc, char* argv[]) {
    qInstallMessageHandler(OnlyTrace);
    SurviveFileSizeLimit();
    // A report's page needs fonts but no display, whatever the desktop has set.
    qputenv("QT_QPA_PLATFORM", "offscreen");
    // Qt sees none of the arguments; it would take some for its own, such as a value "-style".
    int programOnly = 1;
    const QGuiApplication app(programOnly, argv);
    return RunConsole(Arguments(argc, argv));
}
