#pragma once

#include <QScrollArea>

class DataReport;
class PreviewCanvas;

/// The page of a preview in its scroll bars, with its zoom. At the edge of a page the wheel turns
/// to the next one; with Ctrl it zooms.
class PreviewArea : public QScrollArea {
    Q_OBJECT
public:
    /// The report and its rows outlive it.
    PreviewArea(const DataReport& report, QWidget* parent);

    int Page() const { return m_page; }
    /// Shows the top of a page; a number outside the report shows the nearest page.
    void GoToPage(int page);
    /// 1.0 is the paper's own size on the screen.
    double Zoom() const { return m_zoom; }
    void SetZoom(double factor);
    void ZoomIn();
    void ZoomOut();
    /// These two follow the size of the area until another zoom is set.
    void FitWidth();
    void FitPage();
    /// How often a page was painted, for measuring.
    int PagesPainted() const;

signals:
    /// Another page or another zoom is shown.
    void Changed();

protected:
    void resizeEvent(QResizeEvent* event) override;
    void wheelEvent(QWheelEvent* event) override;

private:
    enum class Fit { None, Width, Page };

    void ApplyFit();
    void ZoomTo(double factor);
    bool TurnPageByWheel(int delta);

    const DataReport& m_report;
    PreviewCanvas* m_canvas;
    int m_page = 0;
    int m_wheelBeyondEdge = 0; ///< in eighths of a degree
    double m_zoom = 1.0;
    Fit m_fit = Fit::Width;
};
