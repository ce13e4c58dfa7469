#pragma once

#include "Command.h"
#include "MemoryDownload.h"

/// What the commands at a docking station share.

/// Gives a command the required option --device. The command opens that port, asks for the docking
/// station and, if it answers, does its work.
CommandRun DockRun(CLI::App& options,
                   std::function<bool(DockingLink& link, const ConsoleBoxes& boxes)> work);
/// The same for a command that can print its result as JSON: with the option --json.
CommandRun
JsonDockRun(CLI::App& options,
            std::function<bool(DockingLink& link, const ConsoleBoxes& boxes, bool json)> work);

/// Runs a transfer without a window. Cancels it if nothing answers at all.
TransferResult RunConsoleTransfer(DockingLink& link, TransferPurpose purpose);

/// A download or an erasure without windows: only its last message is kept.
class ConsoleDownload : public DownloadView {
public:
    explicit ConsoleDownload(DockingLink& link) : m_link(link) {}

    TransferResult RunTransfer(TransferPurpose purpose) override {
        return RunConsoleTransfer(m_link, purpose);
    }
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

/// Checks the store before a reader is erased, and says so if it is damaged: then the erasure is
/// refused.
void CheckStoreBeforeErasing();
