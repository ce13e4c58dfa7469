#include "Console.h"

#include <QGuiApplication>

int main(int argc, char* argv[]) {
    // A report's page needs fonts but no display.
    if (!qEnvironmentVariableIsSet("QT_QPA_PLATFORM"))
        qputenv("QT_QPA_PLATFORM", "offscreen");
    const QGuiApplication app(argc, argv);
    return RunConsole(QGuiApplication::arguments().mid(1));
}
