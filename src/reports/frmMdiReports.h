#pragma once

#include <QWidget>

#include <memory>
#include <vector>

class ReportViewer;
class QTreeWidgetItem;
namespace Ui {
class frmMdiReports;
}

/// The reports page: lists the reports, and opens the dialog of the one that is chosen.
class frmMdiReports : public QWidget {
    Q_OBJECT
public:
    /// The viewer outlives the page.
    frmMdiReports(ReportViewer& viewer, QWidget* parent);
    ~frmMdiReports() override;

    /// Opens the report with this key, if a row is selected; `text` becomes its dialog's caption.
    /// An unknown key opens nothing.
    void ReportParamShow(const QString& key, const QString& text);

protected:
    void resizeEvent(QResizeEvent* event) override;
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    struct CatalogueRow {
        const char* key;
        const char* name;
        const char* description;
        void (frmMdiReports::*opener)(const QString& caption);
    };
    /// The reports of the system, in the order of the list. A further report is one more row, and
    /// its opener.
    static const std::vector<CatalogueRow>& Catalogue();

    void LoadReportList();
    void AddReportItem(const QString& key, const QString& name, const QString& description);
    void SizeColumns();
    /// Null if none is.
    QTreeWidgetItem* SelectedRow() const;
    void OpenSelected();
    void LoadTourReport(const QString& caption);

    std::unique_ptr<Ui::frmMdiReports> m_ui;
    ReportViewer& m_viewer;
};
