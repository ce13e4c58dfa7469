#include "PreviewArea.h"

#include "DataReport.h"
#include "PreviewCanvas.h"

#include <QScrollBar>
#include <QWheelEvent>

#include <algorithm>
#include <array>
#include <cmath>

namespace {

constexpr int WheelNotch = 120; // eighths of a degree
constexpr std::array<double, 9> ZoomSteps = {0.25, 0.5, 0.75, 1.0, 1.25, 1.5, 2.0, 3.0, 4.0};

/// The middle of what a bar shows, as a part of the whole.
double MiddleOf(const QScrollBar& bar) {
    return (bar.value() + bar.pageStep() / 2.0) / std::max(1, bar.maximum() + bar.pageStep());
}

void SetMiddle(QScrollBar& bar, double middle) {
    bar.setValue(static_cast<int>(
        std::lround(middle * (bar.maximum() + bar.pageStep()) - bar.pageStep() / 2.0)));
}

} // namespace

PreviewArea::PreviewArea(const DataReport& report, QWidget* parent)
    : QScrollArea(parent), m_report(report), m_canvas(new PreviewCanvas(report, this)) {
    setObjectName(QStringLiteral("scrPage"));
    setWidget(m_canvas);
    setAlignment(Qt::AlignHCenter | Qt::AlignTop);
    setBackgroundRole(QPalette::Mid);
}

int PreviewArea::PagesPainted() const { return m_canvas->PagesPainted(); }

void PreviewArea::GoToPage(int page) {
    m_page = std::clamp(page, 0, m_report.PageCount() - 1);
    m_wheelBeyondEdge = 0;
    m_canvas->ShowPage(m_page);
    verticalScrollBar()->setValue(0);
    emit Changed();
}

void PreviewArea::SetZoom(double factor) {
    m_fit = Fit::None;
    ZoomTo(std::clamp(factor, ZoomSteps.front(), ZoomSteps.back()));
}

/// What is in the middle of the window stays there.
void PreviewArea::ZoomTo(double factor) {
    QScrollBar& across = *horizontalScrollBar();
    QScrollBar& down = *verticalScrollBar();
    const double middleAcross = MiddleOf(across);
    const double middleDown = down.value() == 0 ? 0 : MiddleOf(down);
    m_zoom = factor;
    m_canvas->SetZoom(m_zoom);
    SetMiddle(across, middleAcross);
    SetMiddle(down, middleDown);
    emit Changed();
}

void PreviewArea::ZoomIn() {
    const auto larger = std::find_if(ZoomSteps.begin(), ZoomSteps.end(),
                                     [this](double step) { return step > m_zoom + 0.01; });
    SetZoom(larger == ZoomSteps.end() ? ZoomSteps.back() : *larger);
}

void PreviewArea::ZoomOut() {
    const auto smaller = std::find_if(ZoomSteps.rbegin(), ZoomSteps.rend(),
                                      [this](double step) { return step < m_zoom - 0.01; });
    SetZoom(smaller == ZoomSteps.rend() ? ZoomSteps.front() : *smaller);
}

void PreviewArea::FitWidth() {
    m_fit = Fit::Width;
    ApplyFit();
}

void PreviewArea::FitPage() {
    m_fit = Fit::Page;
    ApplyFit();
}

void PreviewArea::ApplyFit() {
    if (m_fit == Fit::None)
        return;
    const QSize area = maximumViewportSize();
    const int bar = verticalScrollBar()->sizeHint().width();
    ZoomTo(m_fit == Fit::Width ? m_canvas->ZoomForWidth(area.width() - bar)
                               : m_canvas->ZoomForArea(area));
}

void PreviewArea::resizeEvent(QResizeEvent* event) {
    QScrollArea::resizeEvent(event);
    ApplyFit();
}

/// At the edge of a page, one notch of the wheel turns the page. Steps are added up to notches,
/// because a touch pad sends many small ones.
bool PreviewArea::TurnPageByWheel(int delta) {
    const QScrollBar* bar = verticalScrollBar();
    const bool atEdge = delta < 0 ? bar->value() == bar->maximum() : bar->value() == bar->minimum();
    const int page = m_page + (delta < 0 ? 1 : -1);
    if (!atEdge || page < 0 || page >= m_report.PageCount()) {
        m_wheelBeyondEdge = 0;
        return false;
    }
    m_wheelBeyondEdge += delta;
    if (std::abs(m_wheelBeyondEdge) >= WheelNotch) {
        GoToPage(page);
        if (delta > 0)
            verticalScrollBar()->setValue(bar->maximum());
    }
    return true;
}

void PreviewArea::wheelEvent(QWheelEvent* event) {
    const int delta = event->angleDelta().y();
    if (event->modifiers() & Qt::ControlModifier) {
        if (delta != 0)
            delta > 0 ? ZoomIn() : ZoomOut();
    } else if (delta == 0 || !TurnPageByWheel(delta)) {
        QScrollArea::wheelEvent(event);
    }
}
