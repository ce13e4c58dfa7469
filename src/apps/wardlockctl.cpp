#include "Console.h"

#include <QGuiApplication>

namespace {

/// Keeps a library's remarks, such as on a missing desktop, off standard error, which is for this
/// program's own messages. The trace is written only if it is switched on.
void OnlyTrace(QtMsgType type, const QMessageLogContext& context, const QString& text) {
    if (type == QtFatalMsg || qstrcmp(context.category, "wardlock.trace") == 0)
        fprintf(stderr, "%s\n", qPrintable(text));
}

QStringList Arguments(int argc, char* argv[]) {
#ifdef Q_OS_WIN
    Q_UNUSED(argc)
    Q_UNUSED(argv)
    return QGuiApplication::arguments().mid(1); // Unicode, as the system holds them
#else
    QStringList arguments;
    for (int i = 1; i < argc; ++i)
        arguments += QString::fromLocal8Bit(argv[i]);
    return arguments;
#endif
}

} // namespace

int main(int argc, char* argv[]) {
    qInstallMessageHandler(OnlyTrace);
    // A report's page needs fonts but no display.
    if (!qEnvironmentVariableIsSet("QT_QPA_PLATFORM"))
        qputenv("QT_QPA_PLATFORM", "offscreen");
    // Qt sees none of the arguments; it would take some for its own, such as a value "-style".
    int programOnly = 1;
    const QGuiApplication app(programOnly, argv);
    return RunConsole(Arguments(argc, argv));
}
