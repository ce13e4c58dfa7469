// What the File menu does with the store: backup, restore, and the archive of old events.

#include "Application.h"
#include "Clock.h"
#include "FileDialogs.h"
#include "Format.h"
#include "FreeFile.h"
#include "ProgressWindow.h"
#include "RunTimeError.h"
#include "StoreBackup.h"
#include "StoreRestore.h"
#include "deMain.h"
#include "frmArchive.h"
#include "frmMain.h"
#include "mErrorHandler.h"
#include "mTranslations.h"

#include <QCoreApplication>
#include <QDir>
#include <QFileInfo>
#include <QProgressDialog>

#include <optional>

namespace {

constexpr int StorePause = 200; // milliseconds

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

/// Asks until the file exists and is not the store itself. Empty if the operator cancels.
QString AskForBackup(QWidget* parent) {
    const FileRequest request = DatabaseFile(QT_TR_NOOP("Select location of backup database file"));
    for (;;) {
        QString path = AskForFile(request, Translated, parent);
        if (path.isEmpty())
            return path;
        if (!QFileInfo::exists(path))
            IvMessageBox(
                Translate("That filename cannot be found. Please choose another filename"));
        else if (IsStoreItself(gDatabasePath, path))
            IvMessageBox(
                Translate("This file is the database itself. Please choose a backup of it."));
        else
            return path;
    }
}

bool ConfirmRestore() {
    return IvMessageBox(Translate("Warning: This action will delete the existing database. You "
                                  "will loose ALL data in the existing database.") +
                            u'\n' + Translate("Are you sure you want to continue?"),
                        MessageKind::Question, MessageButtons::YesNo) == MessageAnswer::Yes;
}

/// What every message says after the store has been closed.
QString ProgramCloses() {
    return Translate("Warning : The program will now close.") + u'\n' +
           Translate("Please restart the program to continue.");
}

void CloseStore() {
    if (deMain.Main().State() == adStateOpen) {
        deMain.Close();
        Sleep(StorePause);
    }
    gConn->Close();
    Sleep(StorePause);
    gConn.reset();
}

/// Waits, as long as it takes, until no other process holds the store. Meanwhile a small window
/// says who does. False if the operator cancels.
bool WaitForStore(StoreRestore& restore, QWidget* parent) {
    std::optional<QProgressDialog> window;
    for (;;) {
        Sleep(StorePause);
        if (restore.LockStore())
            return true;
        if (!window) {
            window.emplace(QString(), Translate("Cancel"), 0, 0, parent);
            window->setObjectName(QStringLiteral("frmWaitStore"));
            window->setWindowTitle(Translate("Restore"));
            window->setWindowModality(Qt::ApplicationModal);
            window->show();
        }
        window->setLabelText(Translate("The database is in use. Waiting until it is free.") +
                             u'\n' + restore.Holder());
        DoEvents();
        Sleep(StorePause);
        DoEvents();
        if (window->wasCanceled())
            return false;
    }
}

void ReplaceStore(StoreRestore& restore, const QString& source, QWidget* parent) {
    try {
        if (!WaitForStore(restore, parent)) {
            IvMessageBox(Translate("The database was not restored. It is as it was before.") +
                         u'\n' + ProgramCloses());
            return;
        }
        DoEventsWithoutInput();
        restore.Replace();
    } catch (const RunTimeError& error) {
        throw RunTimeError(error.Number(), error.Description() + u'\n' + ProgramCloses());
    }
    IvMessageBox(Translate("Successfully copied the database") + u'\n' + Translate("From:") + u' ' +
                     QDir::toNativeSeparators(source) + u'\n' + Translate("To:") + u' ' +
                     QDir::toNativeSeparators(gDatabasePath) + u'\n' + ProgramCloses(),
                 MessageKind::Information);
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

void frmMain::GoRestore() {
    bool closed = false;
    Guarded("frmMain::GoRestore", ErrorShow::Dialog, [&] {
        const QString source = AskForBackup(this);
        if (source.isEmpty() || !ConfirmRestore())
            return;
        StoreRestore restore(gDatabasePath, source);
        {
            ProgressWindow progress(QT_TR_NOOP("Restore"), Translated, this,
                                    QT_TR_NOOP("The backup is being copied and checked."));
            if (!restore.MakeCopy(std::ref(progress)))
                return;
        }
        if (!UnloadPage())
            return;
        // The page's recordsets keep the store open until the page is deleted.
        QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
        closed = true;
        CloseStore();
        ReplaceStore(restore, source, this);
    });
    if (closed)
        close(); // saves the window's place and the reader's options, and then calls ExitApp
}
