#include "OwnFiles.h"

#include "Application.h"
#include "StoreLock.h"

#include <QDir>
#include <QFileInfo>

constexpr char LogName[] = "error.log";

bool IsOwnFile(const QString& path) {
    if (StoreLock::IsHeldHere(path))
        return true;
    // The folder by its real path; a link to a file of the program has been followed by the caller.
    const QFileInfo file(path);
    const QString name = file.fileName();
    const QDir folder(QFileInfo(file.path()).canonicalFilePath());
    for (const QString& store : StoreLock::StoresHeldHere()) {
        const QFileInfo held(store);
        if (held.dir() != folder)
            continue;
        // The journal and copies are named after the store. Some disks take "MAIN.MDB" for the same
        // name.
        if (name.startsWith(held.fileName() + u'-', Qt::CaseInsensitive) ||
            name.startsWith(held.fileName() + u'.', Qt::CaseInsensitive))
            return true;
        for (const char* own : {"main.mdb", "main.ldb", "temp.mdb", "temp.mdb-journal", LogName})
            if (name.compare(QLatin1String(own), Qt::CaseInsensitive) == 0)
                return true;
    }
    // If the store is a link, the log is in another folder.
    return folder == QDir(QFileInfo(AppPath()).canonicalFilePath()) &&
           name.compare(QLatin1String(LogName), Qt::CaseInsensitive) == 0;
}
