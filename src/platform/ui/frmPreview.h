#pragma once

#include "ReportViewer.h"
#include "WindowTools.h"

#include <QDialog>

#include <functional>

class DataReport;
class PreviewArea;
class QAction;
class QLabel;
class QLineEdit;
class QToolBar;
class RunTimeError;

/// The preview window of a report: its pages can be looked at, printed and exported as PDF. A page
/// is painted when it is looked at, so a report of any length opens at once.
class frmPreview : public QDialog {
    Q_OBJECT
public:
    /// The report and its rows outlive the window.
    frmPreview(const DataReport& report, TranslateText translate, QWidget* parent);

    int Page() const;
    /// Pages painted so far.
    int PagesPainted() const;

    void GoToPage(int page);

protected:
    void showEvent(QShowEvent* event) override;

private:
    QAction* AddAction(const char* name, const char* text, const QList<QKeySequence>& keys,
                       const std::function<void()>& handler);
    void BuildToolbar();
    void BuildPageField();
    void PlaceWindow();
    void TakeFrameOff();
    void ShowState();
    void TakePageField();
    void Tell(const char* text, const RunTimeError& error);

    void EditPage();
    void Print();
    void Export();

    const DataReport& m_report;
    TranslateText m_translate;
    QToolBar* m_toolbar;
    PreviewArea* m_area;
    QLineEdit* m_pageField;
    QLabel* m_pageCount;
    QLabel* m_zoomText;
    QSize m_firstSize; ///< before the operator has made another one
    QAction* m_first = nullptr;
    QAction* m_previous = nullptr;
    QAction* m_next = nullptr;
    QAction* m_last = nullptr;
};

/// Shows reports in a preview window over `parent`, modally.
class PreviewViewer : public ReportViewer {
public:
    PreviewViewer(QWidget* parent, TranslateText translate)
        : m_parent(parent), m_translate(std::move(translate)) {}
    void Show(DataReport& report) override;
    /// A ProgressWindow.
    WorkProgress Progress() override;

private:
    /// The window over which the next one is shown.
    QWidget* Over() const;

    QWidget* m_parent;
    TranslateText m_translate;
};
