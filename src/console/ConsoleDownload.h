#pragma once

#include "MemoryDownload.h"

#include <QByteArray>

/// The download without windows: nothing is shown but what comes of it.
class ConsoleDownload : public DownloadView {
public:
    explicit ConsoleDownload(DockingLink& link) : m_link(link) {}

    TransferResult RunTransfer(TransferPurpose purpose) override;
    void ShowBusy(bool) override {}
    void ShowMessageText(const QString& text) override { m_text = text; }
    void ShowWarning(bool) override {}
    void ClearList() override {}
    void ShowTouches(const colRawButtons&) override {}
    void ShowLastRow() override {}
    void ShowStatus(const QString&) override {}

    /// The message that the station would show last, such as "Download Successful".
    const QString& MessageText() const { return m_text; }

private:
    DockingLink& m_link;
    QString m_text;
};

/// Runs a transfer that nobody watches. Where nothing at all answers it is given up.
TransferResult RunConsoleTransfer(DockingLink& link, TransferPurpose purpose);

/// What a download brought, for programs and for people.
QByteArray DownloadJson(const MemoryDownload::Outcome& outcome);
QByteArray DownloadText(const MemoryDownload::Outcome& outcome, const QString& message);
