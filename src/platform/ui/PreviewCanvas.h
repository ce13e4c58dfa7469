#pragma once

#include "DateTime.h"

#include <QWidget>

class DataReport;

/// One page of a report on a sheet of paper, at any zoom. Only that page is painted.
class PreviewCanvas : public QWidget {
    Q_OBJECT
public:
    PreviewCanvas(const DataReport& report, QWidget* parent);

    void ShowPage(int page);
    /// 1.0 is the paper's own size on the screen.
    void SetZoom(double factor);
    /// The zoom at which the sheet fills a width, or fits into an area. Both are in pixels.
    double ZoomForWidth(int width) const;
    double ZoomForArea(QSize area) const;
    /// How often a page was painted, for measuring.
    int PagesPainted() const { return m_painted; }

protected:
    void paintEvent(QPaintEvent* event) override;

private:
    void PaintSheet(QPainter& painter, const QRectF& sheet);
    QSizeF PageInches() const;
    double PixelsPerInch() const { return logicalDpiX() * m_zoom; }
    void Resize();

    const DataReport& m_report;
    DateTime m_printedAt;
    int m_page = 0;
    double m_zoom = 1.0;
    int m_painted = 0;
};
