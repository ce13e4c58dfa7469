#include "StoreCheck.h"

#include "Connection.h"
#include "Rows.h"
#include "StoreTables.h"
#include "TableExists.h"
#include "mErrorHandler.h"
#include "mTranslations.h"

namespace {

/// A kind of reference from one row to another.
struct Reference {
    const char* name;    ///< in JSON
    const char* fault;   ///< before the number of those that lead nowhere
    const char* nowhere; ///< gives them
};
constexpr Reference References[] = {
    {"buttonsWithoutGroup", QT_TR_NOOP("Buttons whose group does not exist:"),
     "FROM tblButtons WHERE NOT EXISTS (SELECT ID FROM tblListItems WHERE tblListItems.ID = "
     "tblButtons.lParentID) ;"},
    {"tourPointsWithoutTour", QT_TR_NOOP("Tour points whose tour does not exist:"),
     "FROM tblTourPoints WHERE NOT EXISTS (SELECT ID FROM tblTours WHERE tblTours.ID = "
     "tblTourPoints.lParentID) ;"},
    {"tourPointsWithoutButton", QT_TR_NOOP("Tour points whose button does not exist:"),
     "FROM tblTourPoints WHERE NOT EXISTS (SELECT ID FROM tblButtons WHERE "
     "tblButtons.tButtonCode = tblTourPoints.tButtonCode) ;"},
};

QStringList ColumnsOf(const QString& table, Connection& store) {
    Recordset none;
    none.CursorLocation = adUseClient;
    none.Open(QStringLiteral("SELECT * FROM %1 WHERE 1 = 0 ;").arg(table), store, adOpenStatic,
              adLockReadOnly);
    return none.Columns();
}

} // namespace

QStringList MissingParts(Connection& store) {
    QStringList missing;
    const QStringList tables = TablesOf(store);
    for (const StoreTable& table : StoreTables) {
        const QString name = QString::fromLatin1(table.name);
        if (!tables.contains(name, Qt::CaseInsensitive)) {
            missing += name;
            continue;
        }
        const QStringList columns = ColumnsOf(name, store);
        for (const QString& definition :
             QString::fromLatin1(table.columns).split(QStringLiteral(", "))) {
            const QString column = definition.section(u' ', 0, 0);
            if (!columns.contains(column, Qt::CaseInsensitive))
                missing += name + u'.' + column;
        }
    }
    return missing;
}

QStringList StoreFindings::Faults() const {
    QStringList faults;
    if (!damage.isEmpty())
        faults += opened ? Translate("The database is damaged:") + u' ' + damage : damage;
    if (!missing.isEmpty())
        faults += Translate("Missing:") + u' ' + missing.join(QStringLiteral(", "));
    for (const Reference& reference : References) {
        const int count = lost.value(QLatin1String(reference.name));
        if (count > 0)
            faults += Translate(reference.fault) + u' ' + QString::number(count);
    }
    return faults;
}

StoreFindings ExamineStore(Connection& store) {
    StoreFindings findings;
    const auto step = [&](const auto& body) {
        Trapped(body, [&](const RunTimeError& error) {
            if (findings.damage.isEmpty())
                findings.damage = error.Description();
        });
    };
    step([&] { findings.damage = store.FullCheck(); });
    step([&] { findings.missing = MissingParts(store); });
    QStringList tables;
    step([&] { tables = TablesOf(store); });
    for (const QString& table : tables)
        step([&] { findings.rows[table] = CountRows(table, store); });
    // If a column is missing, a reference cannot be followed.
    for (const Reference& reference : References)
        if (findings.missing.isEmpty())
            step([&] {
                findings.lost[QLatin1String(reference.name)] =
                    CountOf(QLatin1String(reference.nowhere), {}, store);
            });
    return findings;
}
