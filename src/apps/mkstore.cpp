// mkstore FILE         makes the store that is delivered with the program: its tables, no row
// mkstore --demo FILE  makes the demonstration store
//
// Overwrites nothing. Exit status: 0 made, 1 not made, 2 wrong usage.

#include "Connection.h"
#include "DemoStore.h"
#include "RunTimeError.h"
#include "Schema.h"
#include "StorePassword.h"

#include <QCoreApplication>
#include <QFile>
#include <QFileInfo>

#include <cstdio>

namespace {

void MakeStore(const QString& path, bool demo) {
    CreateStoreFile(path, StorePassword);
    try {
        Connection store;
        store.Properties(QStringLiteral("Jet OLEDB:Database Password")) = StorePassword;
        store.Open(QStringLiteral("Data Source=") + ConnectionValue(path));
        CreateTables(store);
        if (demo)
            DemoStore::Fill(store);
    } catch (...) {
        QFile::remove(path); // never leave half a store
        throw;
    }
}

} // namespace

int main(int argc, char* argv[]) {
    const QCoreApplication app(argc, argv);
    QStringList arguments = QCoreApplication::arguments().mid(1);
    const bool demo = arguments.removeAll(QStringLiteral("--demo")) > 0;
    if (arguments.size() != 1 || arguments[0].startsWith(u'-')) {
        std::fputs("usage: mkstore [--demo] FILE\n", stderr);
        return 2;
    }
    try {
        MakeStore(arguments[0], demo);
    } catch (const RunTimeError& error) {
        std::fprintf(stderr, "mkstore: %s\n", error.what());
        return 1;
    }
    return 0;
}
