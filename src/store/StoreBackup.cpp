#include "StoreBackup.h"

#include "OutputFile.h"
#include "StoreCopy.h"
#include "mDeclareGlobals.h"

bool BackUpStore(const QString& target, const WorkProgress& progress) {
    OutputFile file(target, OutputFile::Older::Keep);
    if (!CopyBytes(
            gDatabasePath, [&](const QByteArray& bytes) { file.Write(bytes); }, progress) ||
        !ProveCopy(file.Finish(), RowsPerTable(*gConn), progress))
        return false;
    file.Commit();
    return true;
}
