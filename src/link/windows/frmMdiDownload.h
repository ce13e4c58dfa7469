#pragma once

#include "MemoryDownload.h"
#include "ReportProposal.h"
#include "RowListModel.h"

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
    /// Erases the reader. Unless `silent`, the operator is asked first.
    void EraseReader(bool silent, bool& succeeded);
    /// Enables the page's buttons while there is a docking station.
    void ShowLink(bool detected);
    /// The page may not be left while a download runs. (If the download waits too long for the
    /// dock, closing the page ends the wait, and its window closes after that.)
    bool Busy() const { return m_download.Busy(); }

signals:
    /// While busy, everything else in the main window is disabled.
    void BusyChanged(bool busy);
    void StatusChanged(const QString& text);
    /// The operator wants the report of a tour that was downloaded.
    void ReportWanted(const ReportProposal& proposal);

protected:
    void closeEvent(QCloseEvent* event) override;

private:
    void cmdOnline_Click(int index);
    /// Offers the reports of the tours that were due since the reader's download before this one.
    void OfferReports();

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
    RowListModel m_touches;
    bool m_closeWhenDone = false;
};
