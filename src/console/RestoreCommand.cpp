#include "Clock.h"
#include "Command.h"
#include "CommandOptions.h"
#include "ConsoleTools.h"
#include "Engine.h"
#include "StoreCheck.h"
#include "StoreCopy.h"
#include "StoreFolder.h"
#include "StoreRestore.h"
#include "mOperators.h"
#include "mStore.h"
#include "mTranslations.h"

#include <QDir>

namespace {

constexpr std::int64_t LongestWait = 10'000; // milliseconds
constexpr int LockPause = 200;               // milliseconds

bool WaitForStore(StoreRestore& restore) {
    for (const auto start = MillisecondsRunning(); !restore.LockStore(); Sleep(LockPause))
        if (MillisecondsRunning() - start >= LongestWait)
            return false;
    return true;
}

/// Whether the master's password is that of the present store. Nothing if that store is missing,
/// damaged or without operators: a backup is for this case.
std::optional<bool> MayLogInAtStore() {
    std::optional<bool> may;
    try {
        gConn = std::make_unique<Connection>();
        OpenStore(*gConn, gDatabasePath, StorePassword);
        if (MissingParts(*gConn).filter(QStringLiteral("tblOperators")).isEmpty())
            may =
                CheckOperator(MasterOperator, GivenPassword(), RememberLogin::No) == MasterOperator;
    } catch (const RunTimeError& error) {
        if (error.Number() != RunTimeErrorNumber::FileNotFound && !IsDamage(error.Number()))
            throw NotRestored(error, gDatabasePath);
    }
    gConn.reset();
    return may;
}

bool MayLogInAtCopy(const QString& path) {
    Connection copy;
    OpenCopy(copy, path);
    return MayLogIn(MasterOperator, GivenPassword(), copy);
}

bool RestoreFrom(const QString& source) {
    if (IsNewStoreFolder())
        MakeUserDataFolder(); // a new computer gets the store of the old one
    StoreRestore restore(gDatabasePath, source);
    if (!WaitForStore(restore)) {
        Complain(Translate("The database was not restored. It is as it was before.") + u' ' +
                 restore.Holder());
        return false;
    }
    auto mayLogIn = MayLogInAtStore();
    if (mayLogIn.value_or(true)) {
        restore.MakeCopy([](int, int) { return true; });
        if (!mayLogIn)
            mayLogIn = MayLogInAtCopy(restore.CopyPath());
    }
    if (!*mayLogIn) {
        ComplainOfLogin();
        return false;
    }
    restore.Replace();
    WriteLine(Translate("Successfully copied the database"));
    WriteLine(Translate("From:") + u' ' + QDir::toNativeSeparators(source));
    WriteLine(Translate("To:") + u' ' + QDir::toNativeSeparators(gDatabasePath));
    return true;
}

} // namespace

Command RestoreCommand() {
    return {QStringLiteral("restore"),
            QStringLiteral("replaces the store by a backup, even if the store is missing or "
                           "damaged"),
            QStringLiteral("/mnt/stick/WK_Backup_2026-11-23.mdb --yes"),
            Access::MasterOnly,
            [](CLI::App& options) {
                const auto path = std::make_shared<QString>();
                AddFile(options, *path, "the backup, or another store file");
                AddRequiredFlag(options, "--yes",
                                "confirms that all data in the store is replaced");
                return [path](const ConsoleBoxes&) { return RestoreFrom(*path); };
            },
            Needs::Nothing};
}
