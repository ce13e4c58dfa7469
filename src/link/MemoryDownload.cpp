#include "MemoryDownload.h"

#include "Clock.h"
#include "DockingLink.h"
#include "MemoryTransfer.h"
#include "Recordset.h"
#include "mDeclareGlobals.h"
#include "mErrorHandler.h"
#include "mTranslations.h"

namespace {

void WriteRows(Recordset& events, const colRawButtons& touches, const QString& readerId) {
    const DateTime stamp = Now();
    for (const cRawButton& touch : touches) {
        events.AddNew();
        events.Set(u"dtDLDateTime", stamp);
        events.Set(u"dtDateTime", touch.DateAndTime);
        events.Set(u"tButtonCode", touch.ButtonCode);
        events.Set(u"tButtonName", touch.Name);
        events.Set(u"tButtonDesc", touch.Description);
        events.Set(u"wGroupType", touch.EventType);
        events.Set(u"tGroupName", touch.GroupName);
        events.Set(u"tGroupDesc", touch.GroupDesc);
        events.Set(u"tPipeID", readerId);
        events.Update();
    }
}

} // namespace

void StoreTouches(const colRawButtons& touches, const QString& readerId) {
    Transaction transaction(*gConn);
    Recordset events;
    events.Open(QStringLiteral("tblEvents"), *gConn, adOpenForwardOnly, adLockOptimistic,
                adCmdTable);
    try {
        WriteRows(events, touches, readerId);
    } catch (const RunTimeError&) {
        events.Close();
        transaction.Commit();
        throw;
    }
    events.Close();
    transaction.Commit();
}

void MemoryDownload::Run() {
    m_outcome = {};
    m_view.ShowMessageText({});
    m_view.ClearList();
    SetBusy(true);
    Guarded("cmdOnline_Click of Form frmMdiDownload", [this] { ReadStoreErase(); });
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

void MemoryDownload::ReadStoreErase() {
    TransferResult transfer = m_view.RunTransfer();
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
    m_view.ClearList();
    if (touches.empty()) {
        ShowText(Translate("The Reader was empty"));
    } else {
        m_view.ShowTouches(touches);
        StoreTouches(touches, m_outcome.readerId);
    }
    m_outcome.stored = true;
    Sleep(2500);
    DoEvents();
    if (EraseAfterwards) {
        EraseReader(true, m_outcome.erased);
        ShowText(
            m_text + u'\n' +
            Translate(m_outcome.erased ? "Reader Memory erased" : "Reader Memory NOT erased!"));
    }
    m_outcome.clockSet = !gAutoSetTime || m_link.SetClockToNow();
    if (!m_outcome.clockSet)
        IvMessageBox(Translate("Reader Clock update failed.  Please try again."));
}

void MemoryDownload::EraseReader(bool silent, bool& succeeded) {
    succeeded = false;
    if (!silent && IvMessageBox(Translate("Are you sure you want to clear the reader? "),
                                MessageKind::Question, MessageButtons::YesNo) != MessageAnswer::Yes)
        return;
    if (!silent)
        m_view.ShowStatus({}); // what stands there is of an earlier one
    // The conversation handles events: nothing else may be begun meanwhile, nor the page left.
    const bool alone = !m_busy;
    if (alone)
        SetBusy(true);
    EraseUntilDone(succeeded);
    if (alone)
        SetBusy(false);
    if (succeeded && !silent) {
        m_view.ClearList();
        m_view.ShowStatus(Translate("Reader Erased"));
        IvMessageBox(Translate("Reader Erased"), MessageKind::Information);
    }
}

void MemoryDownload::EraseUntilDone(bool& succeeded) {
    for (m_link.EraseRequest(succeeded); !succeeded; m_link.EraseRequest(succeeded)) {
        if (IvMessageBox(Translate("Reader Erase Failed.  Try again?"), MessageKind::Question,
                         MessageButtons::YesNo) != MessageAnswer::Yes)
            return;
    }
}
