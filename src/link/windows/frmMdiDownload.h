#pragma once

#include "MemoryDownload.h"
#include "TouchListModel.h"

#include <QWidget>

#include <memory>

namespace Ui {
class frmMdiDownload;
}

/// The download page: reads the reader, lists its touches, and erases it on request.
class frmMdiDownload : public QWidget, private DownloadView {
    Q_OBJECT
public:
    frmMdiDownload(DockingLink& link, QWidget* parent);
    ~frmMdiDownload() override;

    /// Translates the page's controls.
    void Translate();
    /// Erases the reader, with or without questions.
    void EraseReader(bool silent, bool& succeeded);
    /// Opens or closes the page's buttons, as a docking station comes or goes.
    void ShowLink(bool detected);
    /// While a download runs the page may not be left. (If it waits for the dock longer than it
    /// should, closing it ends the wait, and closes its window after that.)
    bool Busy() const { return m_download.Busy(); }

signals:
    /// Everything else in the main window is closed while this holds.
    void BusyChanged(bool busy);
    void StatusChanged(const QString& text);

protected:
    void resizeEvent(QResizeEvent* event) override;
    void closeEvent(QCloseEvent* event) override;

private:
    void cmdOnline_Click(int index);
    void SizeColumns();

    TransferResult RunTransfer(TransferPurpose purpose) override;
    void ShowBusy(bool busy) override;
    void ShowMessageText(const QString& text) override;
    void ShowWarning(bool visible) override;
    void ClearList() override;
    void ShowTouches(const colRawButtons& touches) override;
    void ShowLastRow() override;
    void ShowStatus(const QString& text) override;

    std::unique_ptr<Ui::frmMdiDownload> m_ui;
    DockingLink& m_link;
    MemoryDownload m_download;
    TouchListModel m_touches;
    bool m_closeWhenDone = false;
};
