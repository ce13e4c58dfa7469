// What the File menu does with the store: backup, restore, and the archive of old events.

#include "Application.h"
#include "Clock.h"
#include "FileDialogs.h"
#include "Format.h"
#include "FreeFile.h"
#include "ProgressWindow.h"
#include "StoreBackup.h"
#include "frmArchive.h"
#include "frmMain.h"
#include "mErrorHandler.h"
#include "mTranslations.h"

#include <QDir>

namespace {

QString Translated(const QString& text) { return Translate(text); }

FileRequest DatabaseFile(const char* title, const QString& name = {}) {
    return {Translate(title), GetMyDocumentsPath(), Translate("Database Files (*.mdb)"),
            QStringLiteral("mdb"), name};
}

QString AskForBackupName(QWidget* parent) {
    return AskForFreeFile(DatabaseFile(QT_TR_NOOP("Select backup destination"),
                                       QStringLiteral("WK_Backup_") +
                                           Format(Today(), QStringLiteral("yyyy-MM-dd")) +
                                           QStringLiteral(".mdb")),
                          parent);
}

} // namespace

void frmMain::GoArchive() {
    Guarded("frmMain::GoArchive", ErrorShow::Dialog, [this] { frmArchive(this).exec(); });
}

void frmMain::GoBackup() {
    Guarded("frmMain::GoBackup", ErrorShow::Dialog, [this] {
        const QString path = AskForBackupName(this);
        if (path.isEmpty())
            return;
        {
            ProgressWindow progress(QT_TR_NOOP("Backup"), Translated, this,
                                    QT_TR_NOOP("The database is being copied and checked."));
            if (!BackUpStore(path, std::ref(progress)))
                return;
        }
        IvMessageBox(Translate("Successfully copied the database to :") + u'\n' +
                         QDir::toNativeSeparators(path),
                     MessageKind::Information);
    });
}

void frmMain::GoRestore() {}
