#include "frmPreview.h"

#include "Application.h"
#include "DataReport.h"
#include "PreviewCanvas.h"
#include "PrintReport.h"
#include "ProgressWindow.h"
#include "ReportPdf.h"
#include "RunTimeError.h"

#include <QAction>
#include <QApplication>
#include <QFileDialog>
#include <QLabel>
#include <QLineEdit>
#include <QPrintDialog>
#include <QPrinter>
#include <QRegularExpression>
#include <QRegularExpressionValidator>
#include <QScreen>
#include <QScrollArea>
#include <QScrollBar>
#include <QTimer>
#include <QToolBar>
#include <QToolButton>
#include <QVBoxLayout>
#include <QWheelEvent>
#include <QWindow>

#include <algorithm>
#include <array>
#include <cmath>
#include <functional>

namespace {

constexpr int PreviewWidth = 12630; // twips
constexpr int LessThanScreen = 720; // twips
constexpr int WheelNotch = 120;     // eighths of a degree
constexpr std::array<double, 9> ZoomSteps = {0.25, 0.5, 0.75, 1.0, 1.25, 1.5, 2.0, 3.0, 4.0};

QString KeysText(const QList<QKeySequence>& keys) {
    return keys.isEmpty()
               ? QString()
               : QStringLiteral(" (") + keys.first().toString(QKeySequence::NativeText) + u')';
}

/// What a bar shows the middle of, as a part of all.
double MiddleOf(const QScrollBar& bar) {
    return (bar.value() + bar.pageStep() / 2.0) / std::max(1, bar.maximum() + bar.pageStep());
}

void SetMiddle(QScrollBar& bar, double middle) {
    bar.setValue(static_cast<int>(
        std::lround(middle * (bar.maximum() + bar.pageStep()) - bar.pageStep() / 2.0)));
}

/// A title as a file name that every system takes.
QString FileName(QString title) {
    static const QRegularExpression unfit(QStringLiteral("[\\x00-\\x1f<>:\"/\\\\|?*]+"));
    title = title.replace(unfit, QStringLiteral(" ")).simplified();
    return title.isEmpty() ? QStringLiteral("Report") : title;
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
    const QWidget* main = this;
    while (main->parentWidget())
        main = main->parentWidget()->window();
    const QRect area = main->screen()->geometry();
    const int wanted = PixelsOf(PreviewWidth);
    const int otherwise = main == this ? area.width() : main->width();
    move(area.topLeft());
    resize(area.width() >= wanted ? wanted : otherwise, area.height() - PixelsOf(LessThanScreen));
}

/// The size above is that of the window with its frame, which is known once it is on the screen.
void frmPreview::TakeFrameOff() {
    if (!isMaximized())
        resize(size().shrunkBy(windowHandle()->frameMargins()));
}

void frmPreview::showEvent(QShowEvent* event) {
    QDialog::showEvent(event);
    if (!event->spontaneous())
        QTimer::singleShot(0, this, &frmPreview::TakeFrameOff);
}

QAction* frmPreview::AddAction(const char* name, const char* text, const QList<QKeySequence>& keys,
                               void (frmPreview::*handler)()) {
    const QString caption = m_translate(QString::fromUtf8(text));
    auto* action = new QAction(ProgramIcon(QStringLiteral("preview-") + QString::fromLatin1(name)),
                               caption, this);
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
    BuildPageField();
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
    m_toolbar->addSeparator();
    AddAction("close", "Close", {Qt::Key_Escape}, &frmPreview::Close);
    auto* edit = new QAction(this);
    edit->setShortcut(QKeySequence(Qt::CTRL | Qt::Key_G));
    connect(edit, &QAction::triggered, this, &frmPreview::EditPage);
    addAction(edit);
}

void frmPreview::BuildPageField() {
    const QString caption = m_translate(QStringLiteral("Page number"));
    m_pageField->setObjectName(QStringLiteral("txtPage"));
    m_pageField->setAccessibleName(caption);
    m_pageField->setToolTip(caption + KeysText({QKeySequence(Qt::CTRL | Qt::Key_G)}));
    m_pageField->setAlignment(Qt::AlignRight);
    m_pageField->setMaximumWidth(fontMetrics().horizontalAdvance(QStringLiteral("0000000")) + 12);
    static const QRegularExpression digits(QStringLiteral("[0-9]{0,8}"));
    m_pageField->setValidator(new QRegularExpressionValidator(digits, this));
    connect(m_pageField, &QLineEdit::editingFinished, this, &frmPreview::TakePageField);
    connect(m_pageField, &QLineEdit::returnPressed, m_scroll, qOverload<>(&QWidget::setFocus));
    m_toolbar->addWidget(m_pageField);
    m_pageCount->setObjectName(QStringLiteral("lblPageCount"));
    m_toolbar->addWidget(m_pageCount);
}

/// A number beyond the last page is the last page; no number is the page that is shown.
void frmPreview::TakePageField() {
    bool isNumber = false;
    const int typed = m_pageField->text().toInt(&isNumber);
    if (isNumber && typed != m_page + 1)
        GoToPage(typed - 1);
    else
        ShowState();
}

void frmPreview::EditPage() {
    m_pageField->setFocus();
    m_pageField->selectAll();
}

void frmPreview::Last() { GoToPage(m_report.PageCount() - 1); }

void frmPreview::GoToPage(int page) {
    m_page = std::clamp(page, 0, m_report.PageCount() - 1);
    m_wheelBeyondEdge = 0;
    m_canvas->ShowPage(m_page);
    m_scroll->verticalScrollBar()->setValue(0);
    ShowState();
}

void frmPreview::SetZoom(double factor) {
    m_fit = Fit::None;
    ZoomTo(std::clamp(factor, ZoomSteps.front(), ZoomSteps.back()));
}

/// What is in the middle of the window stays there.
void frmPreview::ZoomTo(double factor) {
    QScrollBar& across = *m_scroll->horizontalScrollBar();
    QScrollBar& down = *m_scroll->verticalScrollBar();
    const double middleAcross = MiddleOf(across);
    const double middleDown = down.value() == 0 ? 0 : MiddleOf(down);
    m_zoom = factor;
    m_canvas->SetZoom(m_zoom);
    SetMiddle(across, middleAcross);
    SetMiddle(down, middleDown);
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
    ZoomTo(m_fit == Fit::Width ? m_canvas->ZoomForWidth(area.width() - bar)
                               : m_canvas->ZoomForArea(area));
}

void frmPreview::ShowState() {
    const int pages = m_report.PageCount();
    m_pageField->setText(QString::number(m_page + 1));
    const QString ofPages = m_translate(QStringLiteral("of")) + u' ' + QString::number(pages);
    m_pageCount->setText(u' ' + ofPages + u' ');
    m_scroll->setAccessibleName(m_translate(QStringLiteral("Page")) + u' ' +
                                QString::number(m_page + 1) + u' ' + ofPages);
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

/// At the edge of a page the wheel turns it, a notch a page: a touch pad sends many small steps.
bool frmPreview::TurnPageByWheel(int delta) {
    const QScrollBar* bar = m_scroll->verticalScrollBar();
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
            m_scroll->verticalScrollBar()->setValue(bar->maximum());
    }
    return true;
}

bool frmPreview::eventFilter(QObject* watched, QEvent* event) {
    if (watched == m_scroll->viewport() && event->type() == QEvent::Wheel) {
        const auto* wheel = static_cast<QWheelEvent*>(event);
        const int delta = wheel->angleDelta().y();
        if (wheel->modifiers() & Qt::ControlModifier) {
            if (delta != 0)
                delta > 0 ? ZoomIn() : ZoomOut();
            return true;
        }
        if (delta != 0 && TurnPageByWheel(delta))
            return true;
    }
    return QDialog::eventFilter(watched, event);
}

void frmPreview::Tell(const char* text, const QString& reason) {
    ShowMessage({m_translate(QString::fromUtf8(text)) + QStringLiteral("\r\n") + reason,
                 windowTitle(),
                 MessageKind::Warning,
                 MessageButtons::Ok,
                 {m_translate(QStringLiteral("OK"))}});
}

void frmPreview::Print() {
    QPrinter printer(QPrinter::HighResolution);
    printer.setPageSize(m_report.Paper());
    printer.setDocName(m_report.Caption());
    printer.setFromTo(1, m_report.PageCount());
    QPrintDialog dialog(&printer, this);
    dialog.setOption(QAbstractPrintDialog::PrintPageRange);
    dialog.setOption(QAbstractPrintDialog::PrintCurrentPage);
    dialog.setMinMax(1, m_report.PageCount());
    if (dialog.exec() != QDialog::Accepted)
        return;
    try {
        ProgressWindow progress("Print", m_translate, this);
        PrintReport(m_report, printer, m_page, std::ref(progress));
    } catch (const RunTimeError& error) {
        Tell("The report could not be printed.", error.Description());
    }
}

void frmPreview::Export() {
    QFileDialog dialog(this, m_translate(QStringLiteral("Export to PDF")), GetMyDocumentsPath(),
                       QStringLiteral("PDF (*.pdf)"));
    dialog.setAcceptMode(QFileDialog::AcceptSave);
    dialog.setDefaultSuffix(QStringLiteral("pdf"));
    dialog.selectFile(FileName(m_report.Caption()) + QStringLiteral(".pdf"));
    if (dialog.exec() != QDialog::Accepted)
        return;
    try {
        ProgressWindow progress("Export to PDF", m_translate, this);
        ExportPdf(m_report, dialog.selectedFiles().value(0), m_report.Caption(),
                  std::ref(progress));
    } catch (const RunTimeError& error) {
        Tell("The report could not be exported.", error.Description());
    }
}

void PreviewViewer::Show(DataReport& report) {
    QWidget* over = QApplication::activeModalWidget();
    frmPreview window(report, m_translate, over ? over : m_parent);
    const ArrowPointer arrow;
    window.exec();
}
