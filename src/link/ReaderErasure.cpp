#include "ReaderErasure.h"

#include "DockingLink.h"
#include "LookUps.h"
#include "MemoryDownload.h"
#include "mDeclareGlobals.h"
#include "mTranslations.h"

bool MayClearReader(const QString& docked, const QString& lastRead) {
    QString advice = Translate("Touches that have not been downloaded yet will be lost.");
    if (!docked.isEmpty())
        advice = Labelled(Translate("Reader"), ReaderTextOf(docked)) + u'\n' + advice;
    else if (!lastRead.isEmpty())
        advice += u'\n' + Translate("The reader that was downloaded last:") + u' ' +
                  ReaderTextOf(lastRead);
    return IvMessageBox(Translate("Are you sure you want to clear the reader? ") + docked, advice,
                        MessageKind::Question, MessageButtons::YesNo) == MessageAnswer::Yes;
}

bool ReaderErasure::IsAllowed() {
    if (gStoreDamaged) {
        SayWhyNot(Translate("The database is damaged. The reader was not erased."));
        return false;
    }
    switch (m_imageEnd) {
    case ImageEnd::DataAfterEndMark:
        SayWhyNot(Translate("The reader's memory continues after its end mark. The touches that "
                            "were read are stored, but the reader was not erased."));
        return false;
    case ImageEnd::CountDisagrees:
        SayWhyNot(Translate("The reader holds a different number of records than it reports. The "
                            "touches that were read are stored, but the reader was not erased."));
        return false;
    case ImageEnd::Sound:
        break;
    }
    return true;
}

bool ReaderErasure::Run() {
    for (;;) {
        bool succeeded = false;
        m_link.EraseRequest(succeeded);
        if (succeeded)
            return true;
        if (m_link.ReaderWasRemoved())
            SayWhyNot(Translate("The reader was taken out of the station. It was not erased."));
        do {
            if (gWaitCancelled ||
                IvMessageBox(Translate("Reader Erase Failed.  Try again?"), Consequence(),
                             MessageKind::Question, MessageButtons::YesNo) != MessageAnswer::Yes)
                return false;
        } while (!RightReaderIsDocked());
    }
}

/// The reader may have been exchanged while the question was open, which can be for hours.
bool ReaderErasure::RightReaderIsDocked() {
    const TransferResult docked = m_view.RunTransfer(TransferPurpose::Identifier);
    if (!docked.OK) // the transfer has said why
        return false;
    m_link.AwaitQuietLine();
    if (m_readFrame.isEmpty())
        return DockedReaderIsConfirmed(docked.PipeID);
    // If only the reply to an erase was lost, the reader is empty: erasing it again does no harm.
    const bool sameReader = docked.PipeID == m_readId;
    if (TellTheSame(m_readFrame, docked.FirstFrame) ||
        (sameReader && IsEmptyImage(docked.FirstFrame)))
        return true;
    SayWhyNot(Translate(sameReader
                            ? "The reader has been used since it was read. It was not erased."
                            : "Another reader is in the station. It was not erased."));
    return false;
}

/// It is not known which reader was docked at the first try, so the operator is asked about this
/// one, once.
bool ReaderErasure::DockedReaderIsConfirmed(const QString& readerId) {
    if (readerId != m_readId && MayClearReader(readerId))
        m_readId = readerId;
    return readerId == m_readId;
}

void ReaderErasure::SayWhyNot(const QString& text) {
    m_saidWhyNot = true;
    IvMessageBox(text, m_readFrame.isEmpty() ? QString() : Consequence());
}

/// Without a frame it is not known whether the reader still has its touches: perhaps only the reply
/// to the erase was lost.
QString ReaderErasure::Consequence() const {
    return m_readFrame.isEmpty()
               ? Translate("Put the reader into the docking station so that it sits firmly.")
               : Translate("As long as the reader keeps its touches, each further download stores "
                           "them again.");
}
