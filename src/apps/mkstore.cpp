#include "AppVersion.h"
#include "DeliveredStore.h"
#include "RunTimeError.h"

#include <QCoreApplication>

#include <cstdio>

namespace {

constexpr char Usage[] = "usage: mkstore [--demo] FILE\n"
                         "       mkstore --help | --version\n"
                         "\n"
                         "Makes a store for Wardlock: its tables without rows. An installed "
                         "station makes its store itself\n"
                         "when it is first started. mkstore overwrites no file.\n"
                         "\n"
                         "Options:\n"
                         "  --demo      makes the demonstration store\n"
                         "  --help      shows this text\n"
                         "  --version   shows the version\n"
                         "\n"
                         "exit status: 0 made, 1 not made, 2 wrong usage\n";

} // namespace

int main(int argc, char* argv[]) {
    const QCoreApplication app(argc, argv);
    QStringList arguments = QCoreApplication::arguments().mid(1);
    if (arguments == QStringList(QStringLiteral("--help"))) {
        std::fputs(Usage, stdout);
        return 0;
    }
    if (arguments == QStringList(QStringLiteral("--version"))) {
        std::printf("mkstore %s\n", AppVersionText());
        return 0;
    }
    const bool demo = arguments.removeAll(QStringLiteral("--demo")) > 0;
    if (arguments.size() != 1 || arguments[0].startsWith(u'-')) {
        std::fputs("usage: mkstore [--demo] FILE (see \"mkstore --help\")\n", stderr);
        return 2;
    }
    try {
        MakeDeliveredStore(arguments[0], demo ? StoreContent::Demo : StoreContent::Empty);
    } catch (const RunTimeError& error) {
        std::fprintf(stderr, "mkstore: %s\n", error.what());
        return 1;
    }
    return 0;
}
