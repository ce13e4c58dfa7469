#pragma once

#include "MemoryTransfer.h"

#include <QString>

class DockingLink;
class DownloadView;

/// Asks the operator whether the reader may be erased, and says what would be lost. `docked` and
/// `lastRead` are identifiers: of the reader that is docked, and of the one that was downloaded
/// last. Each is empty if it is not known.
bool MayClearReader(const QString& docked, const QString& lastRead = {});

/// Erases the docked reader, if it may be erased.
///
/// Nothing is erased if the open store is damaged, or if the memory that was read did not end where
/// it should. No other reader is erased in its place: not if the dock reports that the reader was
/// taken out, and before each further try the docked reader is read once more.
class ReaderErasure {
public:
    /// Erases the reader that is docked now.
    ReaderErasure(DockingLink& link, DownloadView& view) : m_link(link), m_view(view) {}
    /// Erases the reader that this transfer read.
    ReaderErasure(DockingLink& link, DownloadView& view, const TransferResult& read)
        : m_link(link), m_view(view), m_readFrame(read.FirstFrame), m_readId(read.PipeID),
          m_imageEnd(read.End) {}

    /// If not, a message says why.
    bool IsAllowed();
    /// Sends the erase command until it succeeds or the operator gives up. True if the reader was
    /// erased.
    bool Run();
    /// A message has said why the reader was not erased.
    bool HasSaidWhyNot() const { return m_saidWhyNot; }

private:
    bool RightReaderIsDocked();
    bool DockedReaderIsConfirmed(const QString& readerId);
    void SayWhyNot(const QString& text);
    /// What the operator should know or do if the reader was not erased, translated.
    QString Consequence() const;

    DockingLink& m_link;
    DownloadView& m_view;
    QByteArray m_readFrame; ///< empty if no reader was read before
    QString m_readId;       ///< of the reader that was read, or that the operator confirmed
    ImageEnd m_imageEnd = ImageEnd::Sound;
    bool m_saidWhyNot = false;
};
