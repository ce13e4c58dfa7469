#include "Console.h"

#include <QGuiApplication>

namespace {

/// Standard error is for what this program has to say; a library's remarks on the surroundings,
/// such as a missing desktop, are not. The trace channel speaks only when it is switched on.
void OnlyTrace(QtMsgType type, const QMessageLogContext& context, const QString& text) {
    if (type == QtFatalMsg || qstrcmp(context.category, "wardlock.trace") == 0)
        fprintf(stderr, "%s\n", qPrintable(text));
}

} // namespace

int main(int argc, char* argv[]) {
    qInstallMessageHandler(OnlyTrace);
    // A report's page needs fonts but no display.
    if (!qEnvironmentVariableIsSet("QT_QPA_PLATFORM"))
        qputenv("QT_QPA_PLATFORM", "offscreen");
    const QGuiApplication app(argc, argv);
    return RunConsole(QGuiApplication::arguments().mid(1));
}
