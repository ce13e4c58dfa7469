#include "Command.h"
#include "CommandOptions.h"
#include "Connection.h"
#include "ConsoleTable.h"
#include "ConsoleTools.h"
#include "RunTimeError.h"
#include "StoreCheck.h"
#include "StoreCopy.h"
#include "mDeclareGlobals.h"
#include "mTranslations.h"

#include <QDir>
#include <QJsonArray>
#include <QJsonObject>

namespace {

struct Check {
    QString file;
    bool json = false;
};

QJsonObject AsObject(const QMap<QString, int>& counts) {
    QJsonObject object;
    for (auto count = counts.begin(); count != counts.end(); ++count)
        object[count.key()] = count.value();
    return object;
}

void Write(const StoreFindings& found, const QString& path, bool json) {
    const QStringList faults = found.Faults();
    if (json) {
        WriteJson({{QStringLiteral("file"), path},
                   {QStringLiteral("sound"), faults.isEmpty()},
                   {QStringLiteral("faults"), QJsonArray::fromStringList(faults)},
                   {QStringLiteral("damage"),
                    found.damage.isEmpty() ? QJsonValue() : QJsonValue(found.damage)},
                   {QStringLiteral("missing"), QJsonArray::fromStringList(found.missing)},
                   {QStringLiteral("rows"), AsObject(found.rows)},
                   {QStringLiteral("lostReferences"), AsObject(found.lost)}});
    } else if (found.opened) {
        ConsoleTable table{{QStringLiteral("table"), QStringLiteral("rows")}, {}};
        for (auto count = found.rows.begin(); count != found.rows.end(); ++count)
            table.rows += {count.key(), count.value()};
        WriteTable(table, false);
    }
    for (const QString& fault : faults)
        Complain(fault);
}

StoreFindings Examine(const QString& path) {
    Connection copy;
    try {
        OpenCopy(copy, path);
    } catch (const RunTimeError& error) {
        StoreFindings none;
        none.opened = false;
        none.damage = error.Description();
        return none;
    }
    return ExamineStore(copy);
}

bool Run(const Check& check) {
    const StoreFindings found = check.file.isEmpty() ? ExamineStore(*gConn) : Examine(check.file);
    Write(found, check.file.isEmpty() ? gDatabasePath : QDir::toNativeSeparators(check.file),
          check.json);
    return found.Faults().isEmpty();
}

CommandRun Prepare(CLI::App& options) {
    const auto check = std::make_shared<Check>();
    AddFile(options, check->file, "the backup to check; without it, the store itself",
            Presence::Optional);
    AddJson(options, check->json);
    return [check](const ConsoleBoxes&) { return Run(*check); };
}

} // namespace

Command CheckCommand() {
    return {QStringLiteral("check"),
            QStringLiteral("checks the store or a backup, and counts its rows"),
            QStringLiteral("--json"), Access::MasterOnly, Prepare};
}
