#pragma once

#include <QWidget>

#include <memory>

class ReportViewer;
struct ReportRow;
class QTreeWidgetItem;
namespace Ui {
class frmMdiReports;
}

/// The reports page: lists the reports, and opens the dialog of the chosen one.
class frmMdiReports : public QWidget {
    Q_OBJECT
public:
    /// The viewer outlives the page.
    frmMdiReports(ReportViewer& viewer, QWidget* parent);
    ~frmMdiReports() override;

    /// If a row is selected: opens the dialog of the report with this key, with `text` as its
    /// caption, or says what must be added first. An unknown key opens nothing.
    void ReportParamShow(const QString& key, const QString& text);

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    void LoadReportList();
    void AddReportItem(const QString& key, const QString& name, const QString& description);
    /// Null if none is selected.
    QTreeWidgetItem* SelectedRow() const;
    void OpenSelected();
    void OpenReport(const ReportRow& report, const QString& caption);

    std::unique_ptr<Ui::frmMdiReports> m_ui;
    ReportViewer& m_viewer;
};
