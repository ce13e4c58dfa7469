#include "MemoryDownload.h"

#include "Clock.h"
#include "DockingLink.h"
#include "Downloads.h"
#include "MemoryTransfer.h"
#include "ReaderErasure.h"
#include "StoreFailure.h"
#include "StoreTouches.h"
#include "mDeclareGlobals.h"
#include "mErrorHandler.h"
#include "mTranslations.h"

#include <QScopeGuard>

void MemoryDownload::Run() {
    m_outcome = {};
    m_saidWhyNotErased = false;
    m_view.ShowMessageText({});
    m_view.ClearList();
    SetBusy(true);
    Guarded("cmdOnline_Click of Form frmMdiDownload", [this] { ReadStoreErase(); });
    m_view.ShowWarning(false);
    m_view.ShowLastRow();
    SetBusy(false);
}

void MemoryDownload::SetBusy(bool busy) {
    m_busy = busy;
    m_view.ShowBusy(busy);
}

void MemoryDownload::ShowText(const QString& text) {
    m_text = text;
    m_view.ShowMessageText(m_text);
}

/// Lets the windows paint first: nothing is painted while the thread sleeps.
void MemoryDownload::Pause(int milliseconds) {
    DoEvents();
    Sleep(milliseconds);
    DoEvents();
}

void MemoryDownload::ReadStoreErase() {
    TransferResult transfer = m_view.RunTransfer(TransferPurpose::Touches);
    DoEvents();
    if (!transfer.OK) {
        ShowText(Translate("Download Failed"));
        return;
    }
    m_outcome.read = true;
    m_outcome.readerId = transfer.PipeID;
    m_outcome.touches = std::move(transfer.Buttons);
    const colRawButtons& touches = m_outcome.touches;
    ShowText(Translate("Download Successful") + u'\n' + Translate("Data Readings = ") +
             QString::number(touches.size()));
    m_view.ShowWarning(true);
    m_view.ClearList();
    if (touches.empty())
        ShowText(Translate("The Reader was empty"));
    else
        m_view.ShowTouches(touches);
    DoEvents();
    if (!Store())
        return;
    Pause(2500);
    if (EraseAfterwards) {
        ReaderErasure erasure(m_link, m_view, transfer);
        m_outcome.erased = erasure.IsAllowed() && erasure.Run();
        m_saidWhyNotErased = erasure.HasSaidWhyNot();
        ShowText(
            m_text + u'\n' +
            Translate(m_outcome.erased ? "Reader Memory erased" : "Reader Memory NOT erased!"));
    }
    m_outcome.clockSet = !gAutoSetTime || SetClock();
}

bool MemoryDownload::Store() {
    m_outcome.stored = m_outcome.touches.empty();
    if (m_outcome.stored)
        return true;
    QString cause;
    const auto store = [this] {
        StoreTouches(m_outcome.touches, m_outcome.readerId, m_outcome.rowsStored);
        m_outcome.stored = true;
    };
    Trapped(store, [&](const RunTimeError& error) {
        ReportError(QStringLiteral("cmdOnline_Click of Form frmMdiDownload"), error,
                    ErrorShow::LogOnly);
        cause = CauseOf(error, gDatabasePath);
    });
    if (m_outcome.stored)
        return true;
    const bool all = m_outcome.rowsStored == static_cast<int>(m_outcome.touches.size());
    ShowText(Translate(all ? "The touches are stored, but the disk reported an error. The reader "
                             "was not erased."
                           : "The touches could not be stored. The reader was not erased.") +
             u'\n' + Translate("Touches stored: ") +
             QStringLiteral("%1 / %2").arg(m_outcome.rowsStored).arg(m_outcome.touches.size()));
    m_saidWhyNotErased = true;
    IvMessageBox(m_text + u'\n' + cause,
                 Translate("All touches are still in the reader.") + u' ' +
                     Translate("Remove the cause, and then download the reader again."));
    return false;
}

bool MemoryDownload::SetClock() {
    if (gWaitCancelled || !ClockDateIsUsable(Now()))
        return false;
    const bool set = m_link.SetClockToNow();
    if (!set)
        IvMessageBox(Translate("Reader Clock update failed.  Please try again."),
                     Translate("The download itself is complete. The clock can be set with Reader "
                               "Options in the Tools menu."));
    return set;
}

void MemoryDownload::EraseReader(bool silent, bool& succeeded) {
    ReaderErasure erasure(m_link, m_view);
    succeeded = EraseIfSure(erasure, silent);
    m_saidWhyNotErased = erasure.HasSaidWhyNot();
    if (!succeeded || silent)
        return;
    m_view.ClearList();
    m_view.ShowMessageText({}); // the text of an earlier download
    m_view.ShowStatus(Translate("Reader Erased"));
    IvMessageBox(Translate("Reader Erased"), MessageKind::Information);
}

/// The reader that was downloaded last, by this page or as the store says; empty if not known.
QString MemoryDownload::LastReaderRead() const {
    QString last = m_outcome.readerId;
    if (last.isEmpty())
        IgnoringErrors([&] { // without its name the question is still right
            if (const auto download = LastDownload())
                last = download->readerId;
        });
    return last;
}

bool MemoryDownload::EraseIfSure(ReaderErasure& erasure, bool silent) {
    if (!erasure.IsAllowed())
        return false;
    if (!silent) {
        if (!MayClearReader({}, LastReaderRead()))
            return false;
        m_view.ShowStatus({}); // the text of an earlier erase
    }
    // Events are handled meanwhile: nothing else may be started, and the page may not be left.
    SetBusy(true);
    const auto free = qScopeGuard([this] { SetBusy(false); });
    m_link.InBuffer().Clear();
    m_link.WatchForRemoval();
    return erasure.Run();
}
