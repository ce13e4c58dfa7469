#pragma once

#include "MemoryTransfer.h"

#include <QDialog>

#include <memory>

namespace Ui {
class frmDownload;
}

/// The progress dialog of one memory transfer. Each object is used once.
class frmDownload : public QDialog, private TransferView {
    Q_OBJECT
public:
    frmDownload(DockingLink& link, QWidget* parent);
    ~frmDownload() override;

    /// Shows the dialog until the transfer has ended.
    TransferResult Run(TransferPurpose purpose);

    /// Escape and the close button cancel the transfer.
    void reject() override { m_transfer.Cancel(); }

private:
    void ShowText(const QString& text) override;
    void ShowReaderId(const QString& readerId) override;
    void ShowWarning(bool visible) override;
    void ShowProgress(int value, int maximum) override;
    void ShowProgressText(const QString& text) override;
    void Beep() override;

    std::unique_ptr<Ui::frmDownload> m_ui;
    MemoryTransfer m_transfer;
};
