#pragma once

#include "RunTimeError.h"
#include "StoreUpkeep.h"
#include "mDeclareGlobals.h"
#include "mStore.h"

#include <QDir>
#include <QStringList>
#include <QTemporaryDir>

/// A temporary application folder with its own settings. Its name has a quote, a blank and an
/// umlaut.
class TestHome {
public:
    enum Content { NoStore, EmptyStore, DemoSite };
    /// If there is a store, it is open in gConn.
    explicit TestHome(Content content);
    ~TestHome();

    QString File(const QString& name) const { return m_folder.filePath(name); }
    QString Store() const { return File("main.mdb"); }
    QString Temp() const { return File("temp.mdb"); }

    /// Copies the dictionary, the help and the pictures from the folder of the programs.
    void CopyProgramFiles(const QString& programs) const;

    bool Open() const { return ADOInit(Store(), StorePassword); }
    static void Close() { gConn.reset(); }
    void Compact() const { CompactStore(ProviderText, Store(), Temp(), StorePassword); }

    /// What was logged since the last call, without the times.
    QString TakeLog() const;

private:
    QTemporaryDir m_folder{QDir::tempPath() + "/keeper's Büro-XXXXXX"};
};

/// The rows of a query on gConn, one text for each, with values separated by "|" and nulls as
/// "NULL".
QStringList RowsOf(const QString& query);

/// All tables of gConn with all their rows, including the engine's own record of IDs.
QStringList ContentOfStore();

/// What the body throws, or an error of number 0 and without a text.
template <typename Body>
RunTimeError ThrownBy(Body&& body) {
    try {
        body();
    } catch (const RunTimeError& error) {
        return error;
    }
    return {0, {}};
}
template <typename Body>
int ErrorOf(Body&& body) {
    return ThrownBy(body).Number();
}
template <typename Body>
QString DescriptionOf(Body&& body) {
    return ThrownBy(body).Description();
}
