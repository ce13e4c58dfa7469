#include "MemoryDownload.h"

#include "Clock.h"
#include "DockingLink.h"
#include "MemoryTransfer.h"
#include "StoreFailure.h"
#include "StoreTouches.h"
#include "mDeclareGlobals.h"
#include "mErrorHandler.h"
#include "mTranslations.h"

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

/// What is shown is painted first: nothing is while the thread sleeps.
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
    m_readFrame = transfer.FirstFrame;
    m_imageEnd = transfer.End;
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
        if (MayErase())
            EraseUntilDone(m_outcome.erased);
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
    ShowText(Translate(all ? "The touches are stored, but the disk reported a failure. The reader "
                             "was not erased."
                           : "The touches could not be stored. The reader was not erased.") +
             u'\n' + Translate("Touches stored: ") +
             QStringLiteral("%1 / %2").arg(m_outcome.rowsStored).arg(m_outcome.touches.size()));
    SayWhyNotErased(m_text + u'\n' + cause);
    return false;
}

bool MemoryDownload::SetClock() {
    if (gWaitCancelled || !ClockDateIsUsable(Now()))
        return false;
    const bool set = m_link.SetClockToNow();
    if (!set)
        IvMessageBox(Translate("Reader Clock update failed.  Please try again."));
    return set;
}

void MemoryDownload::EraseReader(bool silent, bool& succeeded) {
    succeeded = false;
    m_readFrame.clear();
    m_confirmedId.clear();
    m_imageEnd = ImageEnd::Sound;
    m_saidWhyNotErased = false;
    if (!MayErase())
        return;
    if (!silent && IvMessageBox(Translate("Are you sure you want to clear the reader? "),
                                MessageKind::Question, MessageButtons::YesNo) != MessageAnswer::Yes)
        return;
    if (!silent)
        m_view.ShowStatus({}); // what stands there is of an earlier one
    // The conversation handles events: nothing else may be begun meanwhile, nor the page left.
    SetBusy(true);
    m_link.InBuffer().Clear();
    m_link.WatchForRemoval();
    EraseUntilDone(succeeded);
    SetBusy(false);
    if (succeeded && !silent) {
        m_view.ClearList();
        m_view.ShowMessageText({}); // of the download before
        m_view.ShowStatus(Translate("Reader Erased"));
        IvMessageBox(Translate("Reader Erased"), MessageKind::Information);
    }
}

void MemoryDownload::EraseUntilDone(bool& succeeded) {
    for (m_link.EraseRequest(succeeded); !succeeded; m_link.EraseRequest(succeeded)) {
        if (m_link.ReaderWasRemoved())
            SayWhyNotErased(
                Translate("The reader was taken out of the station. It was not erased."));
        do {
            if (gWaitCancelled ||
                IvMessageBox(Translate("Reader Erase Failed.  Try again?"), MessageKind::Question,
                             MessageButtons::YesNo) != MessageAnswer::Yes)
                return;
        } while (!RightReaderIsDocked());
    }
}

bool MemoryDownload::MayErase() {
    if (gStoreDamaged) {
        SayWhyNotErased(Translate("The database is damaged. The reader was not erased."));
        return false;
    }
    switch (m_imageEnd) {
    case ImageEnd::DataAfterEndMark:
        SayWhyNotErased(
            Translate("The reader's memory goes on after its end mark. What was read is stored, "
                      "but the reader was not erased."));
        return false;
    case ImageEnd::CountDisagrees:
        SayWhyNotErased(
            Translate("The reader holds another number of records than it says. What was read is "
                      "stored, but the reader was not erased."));
        return false;
    case ImageEnd::Sound:
        break;
    }
    return true;
}

/// The question whether to try again may have stood there for hours.
bool MemoryDownload::RightReaderIsDocked() {
    const TransferResult docked = m_view.RunTransfer(TransferPurpose::Identifier);
    if (!docked.OK) // the transfer has said why
        return false;
    m_link.AwaitQuietLine();
    if (m_readFrame.isEmpty()) {
        // Which reader was docked at the first try is not known. The operator says it of this one.
        if (docked.PipeID != m_confirmedId &&
            IvMessageBox(Translate("Are you sure you want to clear the reader? ") + docked.PipeID,
                         MessageKind::Question, MessageButtons::YesNo) == MessageAnswer::Yes)
            m_confirmedId = docked.PipeID;
        return docked.PipeID == m_confirmedId;
    }
    // An erase whose reply was lost leaves the reader empty: then it does no harm to repeat it.
    const bool sameReader = docked.PipeID == m_outcome.readerId;
    if (TellTheSame(m_readFrame, docked.FirstFrame) ||
        (sameReader && IsEmptyImage(docked.FirstFrame)))
        return true;
    SayWhyNotErased(Translate(sameReader
                                  ? "The reader has been used since it was read. It was not erased."
                                  : "Another reader is in the station. It was not erased."));
    return false;
}

void MemoryDownload::SayWhyNotErased(const QString& text) {
    m_saidWhyNotErased = true;
    IvMessageBox(text);
}
