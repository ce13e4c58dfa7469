#include "mStore.h"

#include "Application.h"
#include "Format.h"
#include "MessageBox.h"
#include "Recordset.h"
#include "StoreLock.h"
#include "mDeclareGlobals.h"
#include "mErrorHandler.h"
#include "mTranslations.h"

#include <QDir>
#include <QFile>

namespace {

const QString Provider = QStringLiteral("Microsoft.Jet.OLEDB.4.0");
const QString PasswordProperty = QStringLiteral("Jet OLEDB:Database Password");

void OpenStore(Connection& connection, const QString& path, const QString& password) {
    connection.Provider = Provider;
    connection.ConnectionString = QStringLiteral("Data Source=") + path;
    connection.Properties(PasswordProperty) = password;
    connection.Open();
}

void LogOpenFailure(const QString& head, const RunTimeError& error) {
    WriteLog(head + QStringLiteral("\nError #%1\n").arg(error.Number()) + error.Description());
}

int CountRows(const QString& table) {
    Recordset rows;
    rows.CursorLocation = adUseClient;
    rows.Open(table, *gConn, adOpenStatic, adLockOptimistic, adCmdTable);
    return rows.RecordCount();
}

} // namespace

QString ConnectionText(const QString& path, const QString& password) {
    return ProviderText + path + u';' + PasswordProperty + QStringLiteral(" = ") + password;
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
        MsgBox(QStringLiteral("*** System Error: Cannot Open the database at ") + path, {},
               MessageKind::Warning);
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
                              "available."),
               ShortTitle, MessageKind::Critical);
    });
}

void CompactStore(const QString& provider, const QString& path, const QString& tempPath,
                  const QString& password) {
    IgnoringErrors([&] {
        // Held until the new file is in place: who opened the old one in between would write into
        // nothing.
        const StoreLock hold(path);
        // Left behind by a start that was killed; the engine's own file beside it as well.
        QFile::remove(tempPath);
        QFile::remove(tempPath + QStringLiteral("-journal"));
        CompactDatabase(
            provider + path + QStringLiteral("; Jet OLEDB:Database Password=") + password,
            provider + tempPath +
                QStringLiteral(";Jet OLEDB:Engine Type=5; Jet OLEDB:Database Password=") +
                password);
        QFile::setPermissions(tempPath, QFile::permissions(path));
        ReplaceFile(tempPath, path);
    });
    QFile::remove(tempPath);
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
    readers.Open(QStringLiteral("SELECT * FROM tblReaders WHERE tReaderId = '") + readerId +
                     QStringLiteral("' ; "),
                 *gConn);
    return readers.RecordCount() > 0;
}
