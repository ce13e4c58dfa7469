#include "DeliveredStore.h"

#include "Connection.h"
#include "DemoStore.h"
#include "FileReplacement.h"
#include "RunTimeError.h"
#include "Schema.h"
#include "StorePassword.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>

namespace {

void Fill(const QString& path, StoreContent content) {
    CreateStoreFile(path, StorePassword);
    Connection store;
    store.Properties(QStringLiteral("Jet OLEDB:Database Password")) = StorePassword;
    store.Open(QStringLiteral("Data Source=") + ConnectionValue(path));
    CreateTables(store);
    if (content == StoreContent::Demo)
        DemoStore::Fill(store);
}

} // namespace

void MakeDeliveredStore(const QString& path, StoreContent content) {
    if (QFileInfo::exists(path))
        throw RunTimeError(
            RunTimeErrorNumber::FileInUse,
            QStringLiteral("The file '%1' already exists.").arg(QDir::toNativeSeparators(path)));
    const QString part = path + QStringLiteral(".part");
    QFile::remove(part); // left by a program that was killed
    QFile::remove(part + QStringLiteral("-journal"));
    try {
        Fill(part, content);
        PlaceNewFile(part, path);
    } catch (...) {
        QFile::remove(part);
        QFile::remove(part + QStringLiteral("-journal"));
        throw;
    }
}
