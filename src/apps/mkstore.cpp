// mkstore FILE         makes the store that is delivered with the program: its tables, no row
// mkstore --demo FILE  makes the demonstration store
//
// It overwrites no file. Exit status: 0 made, 1 not made, 2 wrong usage.

#include "DeliveredStore.h"
#include "RunTimeError.h"

#include <QCoreApplication>

#include <cstdio>

int main(int argc, char* argv[]) {
    const QCoreApplication app(argc, argv);
    QStringList arguments = QCoreApplication::arguments().mid(1);
    const bool demo = arguments.removeAll(QStringLiteral("--demo")) > 0;
    if (arguments.size() != 1 || arguments[0].startsWith(u'-')) {
        std::fputs("usage: mkstore [--demo] FILE\n", stderr);
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
