#pragma once

#include "MemoryTransfer.h"

#include <QString>

class DockingLink;

/// What the download shows. All texts are translated already.
class DownloadView {
public:
    virtual ~DownloadView() = default;
    /// Runs a memory transfer, with its dialog, to its end.
    virtual TransferResult RunTransfer(TransferPurpose purpose) = 0;
    /// While busy nothing else may be started and the page may not be left.
    virtual void ShowBusy(bool busy) = 0;
    /// An empty text hides the message.
    virtual void ShowMessageText(const QString& text) = 0;
    /// That the reader must stay in the station.
    virtual void ShowWarning(bool visible) = 0;
    virtual void ClearList() = 0;
    /// The rows to be listed, all at once; they live until ClearList or the next call.
    virtual void ShowTouches(const colRawButtons& touches) = 0;
    /// Shows and selects the last row, if there is one.
    virtual void ShowLastRow() = 0;
    virtual void ShowStatus(const QString& text) = 0;
};

/// The download: reads a reader, keeps every touch in tblEvents, erases the reader and sets its
/// clock.
///
/// A reader is erased only after its rows are committed, if its memory ended where it should, and
/// if the open store is sound. No other reader is erased in its place: not if the dock says that it
/// was taken out, and before an erase is repeated the docked reader is read once more.
class MemoryDownload {
public:
    MemoryDownload(DockingLink& link, DownloadView& view) : m_link(link), m_view(view) {}

    /// False keeps the reader's memory.
    bool EraseAfterwards = true;

    void Run();

    /// Erases the reader that is docked; unless `silent`, asks first and says so afterwards. After
    /// a failure the operator may try again, silent or not.
    void EraseReader(bool silent, bool& succeeded);

    /// True from the start of a download, or of an erase on its own, to its end.
    bool Busy() const { return m_busy; }

    /// What the last Run did.
    struct Outcome {
        QString readerId;
        colRawButtons touches;
        bool read = false;   ///< the transfer ended well
        bool stored = false; ///< every touch is committed
        int rowsStored = 0;  ///< that are committed
        bool erased = false;
        bool clockSet = false; ///< or was not to be set
    };
    const Outcome& LastOutcome() const { return m_outcome; }
    /// A message has said why the reader was not erased.
    bool HasSaidWhyNotErased() const { return m_saidWhyNotErased; }

private:
    void SetBusy(bool busy);
    void ReadStoreErase();
    bool Store();
    bool SetClock();
    void Pause(int milliseconds);
    void EraseUntilDone(bool& succeeded);
    bool MayErase();
    bool RightReaderIsDocked();
    void SayWhyNotErased(const QString& text);
    void ShowText(const QString& text);

    DockingLink& m_link;
    DownloadView& m_view;
    Outcome m_outcome;
    /// The reader that may be erased: as it was read, or by the operator's word alone. Empty while
    /// that is the one that is docked.
    QByteArray m_readFrame;
    QString m_confirmedId;
    ImageEnd m_imageEnd = ImageEnd::Sound;
    QString m_text;
    bool m_saidWhyNotErased = false;
    bool m_busy = false;
};
