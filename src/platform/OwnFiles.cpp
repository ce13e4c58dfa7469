#include "OwnFiles.h"

#include "StoreLock.h"

#include <QDir>
#include <QFileInfo>

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
        // The journal and copies are named after the store.
        if (name.startsWith(held.fileName() + u'-') || name.startsWith(held.fileName() + u'.'))
            return true;
        for (const char* own :
             {"main.mdb", "main.ldb", "temp.mdb", "temp.mdb-journal", "error.log"})
            if (name == QLatin1String(own))
                return true;
    }
    return false;
}
