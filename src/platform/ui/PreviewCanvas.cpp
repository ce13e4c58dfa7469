#include "PreviewCanvas.h"

#include "Clock.h"
#include "DataReport.h"
#include "RunTimeError.h"

#include <QPainter>
#include <QScopeGuard>

#include <algorithm>

namespace {

/// Free space around the sheet, in pixels.
constexpr int Margin = 14;

} // namespace

PreviewCanvas::PreviewCanvas(const DataReport& report, QWidget* parent)
    : QWidget(parent), m_report(report), m_printedAt(Now()) {
    Resize();
}

QSizeF PreviewCanvas::PageInches() const {
    return QSizeF(m_report.PageSize()) / DataReport::UnitsPerInch;
}

void PreviewCanvas::Resize() {
    const QSizeF sheet = PageInches() * PixelsPerInch();
    setFixedSize(sheet.toSize() + QSize(2 * Margin, 2 * Margin));
    update();
}

void PreviewCanvas::ShowPage(int page) {
    m_page = page;
    update();
}

void PreviewCanvas::SetZoom(double factor) {
    m_zoom = factor;
    Resize();
}

double PreviewCanvas::ZoomForWidth(int width) const {
    return std::max(1, width - 2 * Margin) / (PageInches().width() * logicalDpiX());
}

double PreviewCanvas::ZoomForArea(QSize area) const {
    return std::min(ZoomForWidth(area.width()), std::max(1, area.height() - 2 * Margin) /
                                                    (PageInches().height() * logicalDpiX()));
}

void PreviewCanvas::paintEvent(QPaintEvent*) {
    QPainter painter(this);
    const QRectF sheet(QPointF(Margin, Margin), PageInches() * PixelsPerInch());
    painter.fillRect(sheet.translated(3, 3), QColor(0, 0, 0, 60));
    painter.fillRect(sheet, Qt::white);
    painter.setClipRect(sheet);
    // Nothing above a paint event can catch a failure, so it is shown instead of the page.
    try {
        PaintSheet(painter, sheet);
    } catch (const RunTimeError& error) {
        painter.setPen(Qt::black);
        painter.drawText(sheet.adjusted(Margin, Margin, -Margin, -Margin), Qt::TextWordWrap,
                         error.Description());
    }
    ++m_painted;
}

void PreviewCanvas::PaintSheet(QPainter& painter, const QRectF& sheet) {
    painter.save();
    const auto restore = qScopeGuard([&] { painter.restore(); });
    painter.translate(sheet.topLeft());
    const double scale = PixelsPerInch() / DataReport::UnitsPerInch;
    painter.scale(scale, scale);
    m_report.PaintPage(painter, m_page, m_printedAt);
}
