#pragma once

#include "ReportViewer.h"
#include "WindowTools.h"

#include <QDialog>

class DataReport;
class PreviewCanvas;
class QAction;
class QLabel;
class QLineEdit;
class QScrollArea;
class QToolBar;

/// The preview window of a report: pages to look at, to print and to keep as PDF. A page is painted
/// when it is looked at, so a report of any length opens at once.
class frmPreview : public QDialog {
    Q_OBJECT
public:
    /// The report and its rows outlive the window.
    frmPreview(const DataReport& report, TranslateText translate, QWidget* parent);

    int Page() const { return m_page; }
    /// Pages painted so far.
    int PagesPainted() const;

    void GoToPage(int page);
    void SetZoom(double factor);

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;
    void showEvent(QShowEvent* event) override;

private:
    enum class Fit { None, Width, Page };

    QAction* AddAction(const char* name, const char* text, const QList<QKeySequence>& keys,
                       void (frmPreview::*handler)());
    void BuildToolbar();
    void BuildPageField();
    void PlaceWindow();
    void TakeFrameOff();
    void ApplyFit();
    void ShowState();
    void TakePageField();
    bool TurnPageByWheel(int delta);
    void ZoomTo(double factor);
    void Tell(const char* text, const QString& reason);

    void First() { GoToPage(0); }
    void Previous() { GoToPage(m_page - 1); }
    void Next() { GoToPage(m_page + 1); }
    void Last();
    void EditPage();
    void ZoomIn();
    void ZoomOut();
    void ZoomFull() { SetZoom(1.0); }
    void FitWidth();
    void FitPage();
    void Print();
    void Export();
    void Close() { reject(); }

    const DataReport& m_report;
    TranslateText m_translate;
    QToolBar* m_toolbar;
    QScrollArea* m_scroll;
    PreviewCanvas* m_canvas;
    QLineEdit* m_pageField;
    QLabel* m_pageCount;
    QLabel* m_zoomText;
    QAction* m_first = nullptr;
    QAction* m_previous = nullptr;
    QAction* m_next = nullptr;
    QAction* m_last = nullptr;
    int m_page = 0;
    int m_wheelBeyondEdge = 0; ///< in eighths of a degree
    double m_zoom = 1.0;
    Fit m_fit = Fit::Width;
};

/// Shows reports in a preview window over `parent`, modally.
class PreviewViewer : public ReportViewer {
public:
    PreviewViewer(QWidget* parent, TranslateText translate)
        : m_parent(parent), m_translate(std::move(translate)) {}
    void Show(DataReport& report) override;

private:
    QWidget* m_parent;
    TranslateText m_translate;
};
