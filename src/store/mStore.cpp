#include "mStore.h"

#include "Connection.h"
#include "MessageBox.h"
#include "StoreFailure.h"
#include "mDeclareGlobals.h"
#include "mErrorHandler.h"
#include "mTranslations.h"

namespace {

const QString Provider = QStringLiteral("Microsoft.Jet.OLEDB.4.0");
const QString PasswordProperty = QStringLiteral("Jet OLEDB:Database Password");

void LogOpenFailure(const QString& head, const RunTimeError& error) {
    WriteLog(head + QStringLiteral("\nError #%1\n").arg(error.Number()) + error.Description());
}

} // namespace

QString ConnectionText(const QString& path, const QString& password) {
    return ProviderText + ConnectionValue(path) + u';' + PasswordProperty + QStringLiteral(" = ") +
           password;
}

void OpenStore(Connection& connection, const QString& path, const QString& password) {
    connection.Provider = Provider;
    connection.ConnectionString = QStringLiteral("Data Source=") + ConnectionValue(path);
    connection.Properties(PasswordProperty) = password;
    connection.Open();
    if (!connection.ForeignJournal().isEmpty())
        TellOfForeignJournal(connection.ForeignJournal());
}

void TellOfUnopenedStore(const QString& path, const QString& cause) {
    MsgBox(QStringLiteral("*** System Error: Cannot Open the database at ") + path +
               QStringLiteral("\n\n") + cause,
           {}, MessageKind::Warning);
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
        TellOfUnopenedStore(path, CauseOf(error, path));
    });
}

bool ADOInit(const QString& path, const QString& password) {
    gConn = std::make_unique<Connection>();
    const auto open = [&] {
        gConn->Mode = adModeUnknown;
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
