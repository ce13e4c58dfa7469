#include "KnownReader.h"

#include "Recordset.h"
#include "mDeclareGlobals.h"

std::optional<QString> ReaderDescription(const QString& readerId) {
    Recordset readers;
    readers.CursorLocation = adUseClient;
    readers.Open(QStringLiteral("SELECT tDescription FROM tblReaders WHERE tReaderId = ? ;"),
                 {readerId}, *gConn);
    if (readers.Eof())
        return {};
    return readers.Text(u"tDescription");
}

QString ReaderText(const QString& readerId) {
    const std::optional<QString> description = ReaderDescription(readerId);
    return description ? readerId + QStringLiteral(" - ") + *description : readerId;
}
