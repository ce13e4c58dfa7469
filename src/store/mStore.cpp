#include "mStore.h"

#include "Engine.h"
#include "FileReplacement.h"
#include "Format.h"
#include "MessageBox.h"
#include "Recordset.h"
#include "StoreFailure.h"
#include "StoreLock.h"
#include "mDeclareGlobals.h"
#include "mErrorHandler.h"
#include "mTranslations.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>

namespace {

const QString Provider = QStringLiteral("Microsoft.Jet.OLEDB.4.0");
const QString PasswordProperty = QStringLiteral("Jet OLEDB:Database Password");

void OpenStore(Connection& connection, const QString& path, const QString& password) {
    connection.Provider = Provider;
    connection.ConnectionString = QStringLiteral("Data Source=") + ConnectionValue(path);
    connection.Properties(PasswordProperty) = password;
    connection.Open();
    if (!connection.ForeignJournal().isEmpty())
        TellOfForeignJournal(connection.ForeignJournal());
}

void LogOpenFailure(const QString& head, const RunTimeError& error) {
    WriteLog(head + QStringLiteral("\nError #%1\n").arg(error.Number()) + error.Description());
}

/// Where the copy of a store is made: in the store's own folder, for only there can it take its
/// place. That is another folder than the temporary file's if the store is a symbolic link.
QString CopyBeside(const QString& store, const QString& tempPath) {
    return QFileInfo(store).dir().filePath(QFileInfo(tempPath).fileName());
}

void RemoveCopy(const QString& copy) {
    QFile::remove(copy);
    QFile::remove(copy + QStringLiteral("-journal"));
}

int CountRows(const QString& table) {
    Recordset rows;
    rows.CursorLocation = adUseClient;
    rows.Open(table, *gConn, adOpenStatic, adLockOptimistic, adCmdTable);
    return rows.RecordCount();
}

} // namespace

QString ConnectionText(const QString& path, const QString& password) {
    return ProviderText + ConnectionValue(path) + u';' + PasswordProperty + QStringLiteral(" = ") +
           password;
}

bool ADOTest(const QString& path, const QString& password) {
    if (gDebugMode)
        WriteLog(QStringLiteral("In ADOTest, DBpath= ") + path + QStringLiteral(",  DBPassword= ") +
                 password);
    const auto test = [&] {
        Connection connection;
        OpenStore(connection, path, password);
        return connection.State() == adStateOpen;
    };
    return Trapped(test, [&](const RunTimeError& error) {
        LogOpenFailure(QStringLiteral("ADOTest Failed. Exiting..."), error);
        MsgBox(QStringLiteral("*** System Error: Cannot Open the database at ") + path +
                   QStringLiteral("\n\n") + CauseOf(error, path),
               {}, MessageKind::Warning);
    });
}

bool ADOInit(const QString& path, const QString& password) {
    gConn = std::make_unique<Connection>();
    const auto open = [&] {
        gConn->Mode = 0;
        OpenStore(*gConn, path, password);
        return gConn->State() == adStateOpen;
    };
    return Trapped(open, [&](const RunTimeError& error) {
        LogOpenFailure(QStringLiteral("ADOInit Failed. Exiting..."), error);
        MsgBox(QStringLiteral("Cannot Open the database, please check that the database file is "
                              "available.\n\n") +
                   CauseOf(error, path),
               ShortTitle, MessageKind::Critical);
    });
}

void CompactStore(const QString& provider, const QString& path, const QString& tempPath,
                  const QString& password) {
    gStoreDamaged = false;
    const auto compact = [&] {
        // Held until the new file is in place: a program that opened the old one in between would
        // write to a file that is gone.
        const StoreLock hold(path);
        const QString store = QFileInfo(path).canonicalFilePath();
        const QString copy = CopyBeside(store, tempPath);
        RemoveCopy(copy);
        const QString passwordPart =
            QStringLiteral("; Jet OLEDB:Database Password=") + ConnectionValue(password);
        const auto replace = [&] {
            CompactDatabase(provider + ConnectionValue(store) + passwordPart,
                            provider + ConnectionValue(copy) +
                                QStringLiteral(";Jet OLEDB:Engine Type=5") + passwordPart);
            KeepOwnerAndMode(store, copy);
            ReplaceFile(copy, store);
        };
        try {
            replace();
        } catch (...) {
            RemoveCopy(copy);
            throw;
        }
    };
    Trapped(compact, [](const RunTimeError& error) {
        WriteLog(QStringLiteral("The database was not compacted. Error #%1: ").arg(error.Number()) +
                 error.Description());
        gStoreDamaged = IsDamage(error.Number());
    });
}

void RemoveLeftoverCopy(const QString& tempPath) {
    RemoveCopy(CopyBeside(QFileInfo(gDatabasePath).canonicalFilePath(), tempPath));
}

void CheckStore() {
    const QString fault = gConn->QuickCheck();
    gStoreDamaged = !fault.isEmpty();
    if (gStoreDamaged)
        WriteLog(QStringLiteral("The database is damaged: ") + fault);
}

void TellOfDamage() {
    if (gStoreDamaged)
        IvMessageBox(Translate("The database is damaged. Some of its events can no longer be "
                               "read.") +
                         u'\n' +
                         Translate("Please restore a backup. Until then, no reader is erased."),
                     MessageKind::Critical, MessageButtons::Ok, ShortTitle);
}

QString SqlDateFmt(DateTime date) {
    return GuardedWithBox("SqlDateFmt", [&] { return Format(date, QStringLiteral("YYYY-MM-DD")); });
}

QString SqlDateTimeFmt(DateTime date) {
    return GuardedWithBox("SqlDateTimeFmt",
                          [&] { return Format(date, QStringLiteral("YYYY-MM-DD Hh:Nn:Ss")); });
}

bool TableExists(const QString& name) {
    const auto tables = gConn->OpenSchema();
    for (; !tables->Eof(); tables->MoveNext())
        if (tables->Text(u"TABLE_NAME") == name)
            return true;
    return false;
}

bool InitRptTmp() {
    return Guarded("InitRptTmp of Form frmRptHardwareListParam", [] {
        const QString table = QStringLiteral("tblReportTemp");
        if (!TableExists(table) && !CreateTblReportTemp(table))
            return false;
        gConn->Execute(QStringLiteral("DELETE FROM tblReportTemp"));
        return true;
    });
}

bool CreateTblReportTemp(const QString& name) {
    return Guarded("CreateTblReportTemp of Form frmRptHardwareListParam", [&] {
        gConn->Execute(QStringLiteral("CREATE TABLE ") + name +
                       QStringLiteral("( ID autoincrement, Field0 memo, Field1 memo, Field2 memo, "
                                      "Field3 memo, Field4 memo, Field5 memo, Field6 memo, "
                                      "Field7 memo, Field8 memo, Field9 memo )"));
        return true;
    });
}

int CountReaders() { return CountRows(QStringLiteral("tblReaders")); }

int CountTours() { return CountRows(QStringLiteral("tblTours")); }

bool IsKnownReader(const QString& readerId) {
    Recordset readers;
    readers.CursorLocation = adUseClient;
    readers.Open(QStringLiteral("SELECT * FROM tblReaders WHERE tReaderId = ? ; "), {readerId},
                 *gConn);
    return readers.RecordCount() > 0;
}
