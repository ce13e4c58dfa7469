// What the File menu does with the store: backup, restore, and the archive of old events.

#include "Application.h"
#include "Clock.h"
#include "FileDialogs.h"
#include "Format.h"
#include "ProgressWindow.h"
#include "StoreBackup.h"
#include "frmMain.h"
#include "mErrorHandler.h"
#include "mTranslations.h"

#include <QDir>
#include <QFileInfo>

namespace {

QString Translated(const QString& text) { return Translate(text); }

FileRequest DatabaseFile(const char* title, const QString& name = {}) {
    return {Translate(title), GetMyDocumentsPath(), Translate("Database Files (*.mdb)"),
            QStringLiteral("mdb"), name};
}

/// Asks until the name is new. Empty if the operator cancels.
QString AskForBackupName(QWidget* parent) {
    const FileRequest request =
        DatabaseFile(QT_TR_NOOP("Select backup destination"),
                     QStringLiteral("WK_Backup_") + Format(Today(), QStringLiteral("yyyy-MM-dd")) +
                         QStringLiteral(".mdb"));
    for (;;) {
        QString path = AskForNewFile(request, Translated, parent);
        const QFileInfo file(path);
        if (!file.exists() && !file.isSymLink()) // a link may lead nowhere
            return path;
        IvMessageBox(Translate("That filename is already in use. Please choose another filename"));
    }
}

} // namespace

void frmMain::GoArchive() {}

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
