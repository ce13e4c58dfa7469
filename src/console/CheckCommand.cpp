#include "Command.h"
#include "CommandOptions.h"
#include "Connection.h"
#include "ConsoleTable.h"
#include "ConsoleTools.h"
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
                   {QStringLiteral("missing"), QJsonArray::fromStringList(found.missing)},
                   {QStringLiteral("rows"), AsObject(found.rows)},
                   {QStringLiteral("lostReferences"), AsObject(found.lost)}});
    } else {
        ConsoleTable table{{QStringLiteral("table"), QStringLiteral("rows")}, {}};
        for (auto count = found.rows.begin(); count != found.rows.end(); ++count)
            table.rows += {count.key(), count.value()};
        WriteTable(table, false);
    }
    for (const QString& fault : faults)
        Complain(fault);
}

bool Run(const Check& check) {
    Connection other;
    if (!check.file.isEmpty())
        OpenCopy(other, check.file);
    const StoreFindings found = ExamineStore(check.file.isEmpty() ? *gConn : other);
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
