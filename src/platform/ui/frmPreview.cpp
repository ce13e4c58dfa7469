#include "frmPreview.h"

#include "Clock.h"
#include "DataReport.h"
#include "PreviewCanvas.h"
#include "ReportPdf.h"
#include "RunTimeError.h"

#include <QAction>
#include <QFileDialog>
#include <QIntValidator>
#include <QLabel>
#include <QLineEdit>
#include <QPainter>
#include <QPrintDialog>
#include <QPrinter>
#include <QScreen>
#include <QScrollArea>
#include <QScrollBar>
#include <QStandardPaths>
#include <QToolBar>
#include <QToolButton>
#include <QVBoxLayout>
#include <QWheelEvent>

#include <algorithm>
#include <array>

namespace {

constexpr int PreviewWidth = 12630;    // twips
constexpr int LessThanScreen = 720;    // twips
constexpr std::array<double, 9> ZoomSteps = {0.25, 0.5, 0.75, 1.0, 1.25, 1.5, 2.0, 3.0, 4.0};

QString KeysText(const QList<QKeySequence>& keys) {
    return keys.isEmpty() ? QString()
                          : QStringLiteral(" (") + keys.first().toString(QKeySequence::NativeText) +
                                u')';
}

} // namespace

frmPreview::frmPreview(const DataReport& report, TranslateText translate, QWidget* parent)
    : QDialog(parent, Qt::Window), m_report(report), m_translate(std::move(translate)),
      m_toolbar(new QToolBar(this)), m_scroll(new QScrollArea(this)),
      m_canvas(new PreviewCanvas(report, m_scroll)), m_pageField(new QLineEdit(this)),
      m_pageCount(new QLabel(this)), m_zoomText(new QLabel(this)) {
    setObjectName(QStringLiteral("frmPreview"));
    setWindowTitle(report.Caption());
    m_scroll->setObjectName(QStringLiteral("scrPage"));
    m_scroll->setAccessibleName(m_translate(QStringLiteral("Page")));
    m_scroll->setWidget(m_canvas);
    m_scroll->setAlignment(Qt::AlignHCenter | Qt::AlignTop);
    m_scroll->setBackgroundRole(QPalette::Mid);
    m_scroll->installEventFilter(this);
    m_scroll->viewport()->installEventFilter(this);
    BuildToolbar();
    auto* layout = new QVBoxLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->setSpacing(0);
    layout->addWidget(m_toolbar);
    layout->addWidget(m_scroll, 1);
    PlaceWindow();
    ShowState();
    m_scroll->setFocus();
}

int frmPreview::PagesPainted() const { return m_canvas->PagesPainted(); }

void frmPreview::PlaceWindow() {
    const QRect available = screen()->availableGeometry();
    const int wanted = PixelsOf(PreviewWidth);
    const int otherwise = parentWidget() ? parentWidget()->window()->width() : available.width();
    move(available.topLeft());
    resize(available.width() >= wanted ? wanted : otherwise,
           available.height() - PixelsOf(LessThanScreen));
}

QAction* frmPreview::AddAction(const char* name, const char* text, const QList<QKeySequence>& keys,
                               void (frmPreview::*handler)()) {
    const QString caption = m_translate(QString::fromUtf8(text));
    auto* action = new QAction(
        ProgramIcon(QStringLiteral("preview-") + QString::fromLatin1(name)), caption, this);
    action->setObjectName(QString::fromLatin1(name));
    action->setShortcuts(keys);
    action->setToolTip(caption + KeysText(keys));
    connect(action, &QAction::triggered, this, handler);
    m_toolbar->addAction(action);
    auto* button = static_cast<QToolButton*>(m_toolbar->widgetForAction(action));
    button->setFocusPolicy(Qt::TabFocus);
    button->setAccessibleName(caption);
    return action;
}

void frmPreview::BuildToolbar() {
    m_toolbar->setIconSize(QSize(22, 22));
    AddAction("print", "Print", {QKeySequence::Print}, &frmPreview::Print);
    AddAction("pdf", "Export to PDF", {QKeySequence::Save}, &frmPreview::Export);
    m_toolbar->addSeparator();
    m_first = AddAction("first", "First page", {Qt::Key_Home}, &frmPreview::First);
    m_previous = AddAction("previous", "Previous page", {Qt::Key_PageUp}, &frmPreview::Previous);
    m_pageField->setObjectName(QStringLiteral("txtPage"));
    m_pageField->setAccessibleName(m_translate(QStringLiteral("Page number")));
    m_pageField->setToolTip(m_translate(QStringLiteral("Page number")) + QStringLiteral(" (Ctrl+G)"));
    m_pageField->setAlignment(Qt::AlignRight);
    m_pageField->setMaximumWidth(fontMetrics().horizontalAdvance(QStringLiteral("0000000")) + 12);
    m_pageField->setValidator(new QIntValidator(1, m_report.PageCount(), this));
    connect(m_pageField, &QLineEdit::returnPressed, this, [this] {
        GoToPage(m_pageField->text().toInt() - 1);
        m_scroll->setFocus();
    });
    m_toolbar->addWidget(m_pageField);
    m_pageCount->setObjectName(QStringLiteral("lblPageCount"));
    m_toolbar->addWidget(m_pageCount);
    m_next = AddAction("next", "Next page", {Qt::Key_PageDown}, &frmPreview::Next);
    m_last = AddAction("last", "Last page", {Qt::Key_End}, &frmPreview::Last);
    m_toolbar->addSeparator();
    AddAction("zoom-out", "Zoom out", {QKeySequence::ZoomOut}, &frmPreview::ZoomOut);
    m_zoomText->setObjectName(QStringLiteral("lblZoom"));
    m_zoomText->setAccessibleName(m_translate(QStringLiteral("Zoom")));
    m_zoomText->setAlignment(Qt::AlignCenter);
    m_zoomText->setMinimumWidth(fontMetrics().horizontalAdvance(QStringLiteral(" 000 % ")));
    m_toolbar->addWidget(m_zoomText);
    AddAction("zoom-in", "Zoom in", {QKeySequence::ZoomIn, QKeySequence(Qt::CTRL | Qt::Key_Equal)},
              &frmPreview::ZoomIn);
    AddAction("zoom-full", "Actual size", {QKeySequence(Qt::CTRL | Qt::Key_0)},
              &frmPreview::ZoomFull);
    AddAction("fit-width", "Fit width", {QKeySequence(Qt::CTRL | Qt::Key_1)},
              &frmPreview::FitWidth);
    AddAction("fit-page", "Whole page", {QKeySequence(Qt::CTRL | Qt::Key_2)}, &frmPreview::FitPage);
    auto* edit = new QAction(this);
    edit->setShortcut(QKeySequence(Qt::CTRL | Qt::Key_G));
    connect(edit, &QAction::triggered, this, &frmPreview::EditPage);
    addAction(edit);
}

void frmPreview::EditPage() {
    m_pageField->setFocus();
    m_pageField->selectAll();
}

void frmPreview::Last() { GoToPage(m_report.PageCount() - 1); }

void frmPreview::GoToPage(int page) {
    m_page = std::clamp(page, 0, m_report.PageCount() - 1);
    m_canvas->ShowPage(m_page);
    m_scroll->verticalScrollBar()->setValue(0);
    ShowState();
}

void frmPreview::SetZoom(double factor) {
    m_fit = Fit::None;
    m_zoom = std::clamp(factor, ZoomSteps.front(), ZoomSteps.back());
    m_canvas->SetZoom(m_zoom);
    ShowState();
}

void frmPreview::ZoomIn() {
    const auto larger = std::find_if(ZoomSteps.begin(), ZoomSteps.end(),
                                     [this](double step) { return step > m_zoom + 0.01; });
    SetZoom(larger == ZoomSteps.end() ? ZoomSteps.back() : *larger);
}

void frmPreview::ZoomOut() {
    const auto smaller = std::find_if(ZoomSteps.rbegin(), ZoomSteps.rend(),
                                      [this](double step) { return step < m_zoom - 0.01; });
    SetZoom(smaller == ZoomSteps.rend() ? ZoomSteps.front() : *smaller);
}

void frmPreview::FitWidth() {
    m_fit = Fit::Width;
    ApplyFit();
}

void frmPreview::FitPage() {
    m_fit = Fit::Page;
    ApplyFit();
}

void frmPreview::ApplyFit() {
    if (m_fit == Fit::None)
        return;
    const QSize area = m_scroll->maximumViewportSize();
    const int bar = m_scroll->verticalScrollBar()->sizeHint().width();
    m_zoom = m_fit == Fit::Width ? m_canvas->ZoomForWidth(area.width() - bar)
                                 : m_canvas->ZoomForArea(area);
    m_canvas->SetZoom(m_zoom);
    ShowState();
}

void frmPreview::ShowState() {
    const int pages = m_report.PageCount();
    m_pageField->setText(QString::number(m_page + 1));
    m_pageCount->setText(u' ' + m_translate(QStringLiteral("of")) + u' ' + QString::number(pages) +
                         u' ');
    m_zoomText->setText(QStringLiteral("%1 %").arg(std::lround(m_zoom * 100)));
    m_first->setEnabled(m_page > 0);
    m_previous->setEnabled(m_page > 0);
    m_next->setEnabled(m_page + 1 < pages);
    m_last->setEnabled(m_page + 1 < pages);
}

void frmPreview::resizeEvent(QResizeEvent* event) {
    QDialog::resizeEvent(event);
    ApplyFit();
}

/// Past the edge of a page the wheel turns it.
bool frmPreview::Scroll(int pages) {
    const QScrollBar* bar = m_scroll->verticalScrollBar();
    const bool atEdge = pages > 0 ? bar->value() == bar->maximum() : bar->value() == bar->minimum();
    const int page = m_page + pages;
    if (!atEdge || page < 0 || page >= m_report.PageCount())
        return false;
    GoToPage(page);
    if (pages < 0)
        m_scroll->verticalScrollBar()->setValue(bar->maximum());
    return true;
}

bool frmPreview::eventFilter(QObject* watched, QEvent* event) {
    if (watched == m_scroll->viewport() && event->type() == QEvent::Wheel) {
        const auto* wheel = static_cast<QWheelEvent*>(event);
        const int delta = wheel->angleDelta().y();
        if (wheel->modifiers() & Qt::ControlModifier) {
            delta > 0 ? ZoomIn() : ZoomOut();
            return true;
        }
        if (delta != 0 && Scroll(delta > 0 ? -1 : 1))
            return true;
    }
    return QDialog::eventFilter(watched, event);
}

void frmPreview::Print() {
    QPrinter printer(QPrinter::HighResolution);
    printer.setPageSize(m_report.Paper());
    printer.setDocName(m_report.Caption());
    printer.setFullPage(true);
    printer.setFromTo(1, m_report.PageCount());
    QPrintDialog dialog(&printer, this);
    dialog.setOption(QAbstractPrintDialog::PrintPageRange);
    dialog.setOption(QAbstractPrintDialog::PrintCurrentPage);
    dialog.setMinMax(1, m_report.PageCount());
    if (dialog.exec() != QDialog::Accepted)
        return;
    int first = 0, last = m_report.PageCount() - 1;
    if (printer.printRange() == QPrinter::CurrentPage) {
        first = last = m_page;
    } else if (printer.printRange() == QPrinter::PageRange) {
        first = printer.fromPage() - 1;
        last = printer.toPage() - 1;
    }
    const Hourglass hourglass;
    const DateTime printedAt = Now();
    QPainter painter;
    bool ok = painter.begin(&printer);
    for (int page = first; ok && page <= last; ++page) {
        if (page > first)
            ok = printer.newPage();
        painter.save();
        const double scale = printer.logicalDpiX() / DataReport::UnitsPerInch;
        painter.scale(scale, scale);
        m_report.PaintPage(painter, page, printedAt);
        painter.restore();
    }
    ok = painter.isActive() && painter.end() && ok;
    if (!ok)
        MsgBox(m_translate(QStringLiteral("The report could not be printed.")), windowTitle(),
               MessageKind::Warning);
}

void frmPreview::Export() {
    const QString folder =
        QStandardPaths::writableLocation(QStandardPaths::DocumentsLocation);
    const QString path = QFileDialog::getSaveFileName(
        this, m_translate(QStringLiteral("Export to PDF")),
        folder + u'/' + m_report.Caption() + QStringLiteral(".pdf"),
        QStringLiteral("PDF (*.pdf)"));
    if (path.isEmpty())
        return;
    try {
        const Hourglass hourglass;
        ExportPdf(m_report, path, m_report.Caption());
    } catch (const RunTimeError& error) {
        MsgBox(error.Description(), windowTitle(), MessageKind::Warning);
    }
}

void PreviewViewer::Show(DataReport& report) {
    QWidget* over = QApplication::activeModalWidget();
    frmPreview window(report, m_translate, over ? over : m_parent);
    window.exec();
}
