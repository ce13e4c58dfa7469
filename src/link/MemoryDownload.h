#pragma once

#include "MemoryTransfer.h"

#include <QString>

class DockingLink;

/// What the download shows. All texts are translated already.
class DownloadView {
public:
    virtual ~DownloadView() = default;
    /// Runs a full memory transfer, with its dialog, to its end.
    virtual TransferResult RunTransfer() = 0;
    /// While busy nothing else may be started and the page may not be left.
    virtual void ShowBusy(bool busy) = 0;
    /// An empty text hides the message.
    virtual void ShowMessageText(const QString& text) = 0;
    virtual void ClearList() = 0;
    /// The rows to be listed, all at once; they live until ClearList or the next call.
    virtual void ShowTouches(const colRawButtons& touches) = 0;
    /// Shows and selects the last row, if there is one.
    virtual void ShowLastRow() = 0;
    virtual void ShowStatus(const QString& text) = 0;
};

/// The download: reads a reader, keeps every touch in tblEvents, erases the reader and sets its
/// clock. The erase never comes before the rows are committed.
class MemoryDownload {
public:
    MemoryDownload(DockingLink& link, DownloadView& view) : m_link(link), m_view(view) {}

    /// False keeps the reader's memory.
    bool EraseAfterwards = true;

    void Run();

    /// Erases the reader; unless `silent`, asks first and tells afterwards. After a failure the
    /// operator may try again, silent or not.
    void EraseReader(bool silent, bool& succeeded);

    /// True from the start of a download, or of an erase on its own, to its end.
    bool Busy() const { return m_busy; }

    /// What the last Run did.
    struct Outcome {
        QString readerId;
        colRawButtons touches;
        bool read = false;   ///< the transfer ended well
        bool stored = false; ///< every touch is committed
        bool erased = false;
        bool clockSet = false; ///< or was not to be set
    };
    const Outcome& LastOutcome() const { return m_outcome; }

private:
    void SetBusy(bool busy);
    void ReadStoreErase();
    void EraseUntilDone(bool& succeeded);
    void ShowText(const QString& text);

    DockingLink& m_link;
    DownloadView& m_view;
    Outcome m_outcome;
    QString m_text;
    bool m_busy = false;
};

/// Writes one row of tblEvents for each touch, in one transaction. It is committed, and so on disk,
/// when this returns. Where a row fails, those before it are committed and the failure is thrown
/// on, as RunTimeError.
void StoreTouches(const colRawButtons& touches, const QString& readerId);
