#pragma once

#include "MemoryTransfer.h"

#include <QString>

class DockingLink;
class ReaderErasure;

/// What the download shows. All texts are translated already.
class DownloadView {
public:
    virtual ~DownloadView() = default;
    /// Runs a memory transfer, with its dialog, to its end.
    virtual TransferResult RunTransfer(TransferPurpose purpose) = 0;
    /// While busy, nothing else may be started and the page may not be left.
    virtual void ShowBusy(bool busy) = 0;
    /// An empty text hides the message.
    virtual void ShowMessageText(const QString& text) = 0;
    /// The warning that the reader must stay in the station.
    virtual void ShowWarning(bool visible) = 0;
    virtual void ClearList() = 0;
    /// The touches to list, all at once.
    virtual void ShowTouches(const colRawButtons& touches) = 0;
    /// Shows and selects the last row, if there is one.
    virtual void ShowLastRow() = 0;
    virtual void ShowStatus(const QString& text) = 0;
};

/// The download: reads a reader, stores every touch in tblEvents, erases the reader and sets its
/// clock. A reader is erased only after its rows are committed, and if ReaderErasure allows it.
class MemoryDownload {
public:
    MemoryDownload(DockingLink& link, DownloadView& view) : m_link(link), m_view(view) {}

    /// If false, the reader keeps its memory.
    bool EraseAfterwards = true;

    void Run();

    /// Erases the docked reader. Unless `silent`, asks first and reports the success. After a
    /// failure the operator may try again, silent or not.
    void EraseReader(bool silent, bool& succeeded);

    /// True while a download runs, or a separate erase.
    bool Busy() const { return m_busy; }

    /// What the last Run did.
    struct Outcome {
        QString readerId;
        colRawButtons touches;
        bool read = false;   ///< the transfer succeeded
        bool stored = false; ///< every touch is committed
        int rowsStored = 0;  ///< committed rows
        bool erased = false;
        bool clockSet = false; ///< also true if it was not to be set
    };
    const Outcome& LastOutcome() const { return m_outcome; }
    /// A message has told the operator why the reader was not erased.
    bool HasSaidWhyNotErased() const { return m_saidWhyNotErased; }

private:
    void SetBusy(bool busy);
    void ReadStoreErase();
    bool Store();
    bool SetClock();
    void Pause(int milliseconds);
    QString LastReaderRead() const;
    bool EraseIfSure(ReaderErasure& erasure, bool silent);
    void ShowText(const QString& text);

    DockingLink& m_link;
    DownloadView& m_view;
    Outcome m_outcome;
    QString m_text;
    bool m_saidWhyNotErased = false;
    bool m_busy = false;
};
