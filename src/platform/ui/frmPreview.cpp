#include "frmPreview.h"

#include "Application.h"
#include "DataReport.h"
#include "FileDialogs.h"
#include "FileReplacement.h"
#include "PreviewArea.h"
#include "PrintReport.h"
#include "ProgressWindow.h"
#include "ReportPdf.h"
#include "WindowPlace.h"

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
#include <QTimer>
#include <QToolBar>
#include <QToolButton>
#include <QVBoxLayout>
#include <QWindow>

#include <cmath>
#include <functional>

namespace {

constexpr int PreviewWidth = 12630; // twips
constexpr int LessThanScreen = 720; // twips

QString KeysText(const QList<QKeySequence>& keys) {
    return keys.isEmpty()
               ? QString()
               : QStringLiteral(" (") + keys.first().toString(QKeySequence::NativeText) + u')';
}

} // namespace

frmPreview::frmPreview(const DataReport& report, TranslateText translate, QWidget* parent)
    : QDialog(parent, Qt::Window), m_report(report), m_translate(std::move(translate)),
      m_toolbar(new QToolBar(this)), m_area(new PreviewArea(report, this)),
      m_pageField(new QLineEdit(this)), m_pageCount(new QLabel(this)),
      m_zoomText(new QLabel(this)) {
    setObjectName(QStringLiteral("frmPreview"));
    setWindowTitle(report.Caption());
    connect(m_area, &PreviewArea::Changed, this, &frmPreview::ShowState);
    BuildToolbar();
    auto* layout = new QVBoxLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->setSpacing(0);
    layout->addWidget(m_toolbar);
    layout->addWidget(m_area, 1);
    PlaceWindow();
    m_firstSize = size();
    RememberPlace(*this);
    ShowState();
    m_area->setFocus();
}

int frmPreview::Page() const { return m_area->Page(); }

int frmPreview::PagesPainted() const { return m_area->PagesPainted(); }

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

/// The size set before includes the window's frame, which is known only once it is on the screen.
void frmPreview::TakeFrameOff() {
    if (!isMaximized())
        resize(size().shrunkBy(windowHandle()->frameMargins()));
}

void frmPreview::showEvent(QShowEvent* event) {
    QDialog::showEvent(event);
    if (!event->spontaneous() && size() == m_firstSize) // not the one that was remembered
        QTimer::singleShot(0, this, &frmPreview::TakeFrameOff);
}

QAction* frmPreview::AddAction(const char* name, const char* text, const QList<QKeySequence>& keys,
                               const std::function<void()>& handler) {
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
    AddAction("print", QT_TR_NOOP("Print"), {QKeySequence::Print}, [this] { Print(); });
    AddAction("pdf", QT_TR_NOOP("Export to PDF"), {QKeySequence::Save}, [this] { Export(); });
    m_toolbar->addSeparator();
    m_first = AddAction("first", QT_TR_NOOP("First page"), {Qt::Key_Home}, [this] { GoToPage(0); });
    m_previous = AddAction("previous", QT_TR_NOOP("Previous page"), {Qt::Key_PageUp},
                           [this] { GoToPage(Page() - 1); });
    BuildPageField();
    m_next = AddAction("next", QT_TR_NOOP("Next page"), {Qt::Key_PageDown},
                       [this] { GoToPage(Page() + 1); });
    m_last = AddAction("last", QT_TR_NOOP("Last page"), {Qt::Key_End},
                       [this] { GoToPage(m_report.PageCount() - 1); });
    m_toolbar->addSeparator();
    AddAction("zoom-out", QT_TR_NOOP("Zoom out"), {QKeySequence::ZoomOut},
              [this] { m_area->ZoomOut(); });
    m_zoomText->setObjectName(QStringLiteral("lblZoom"));
    m_zoomText->setAccessibleName(m_translate(QStringLiteral("Zoom")));
    m_zoomText->setAlignment(Qt::AlignCenter);
    m_zoomText->setMinimumWidth(fontMetrics().horizontalAdvance(QStringLiteral(" 000 % ")));
    m_toolbar->addWidget(m_zoomText);
    AddAction("zoom-in", QT_TR_NOOP("Zoom in"),
              {QKeySequence::ZoomIn, QKeySequence(Qt::CTRL | Qt::Key_Equal)},
              [this] { m_area->ZoomIn(); });
    AddAction("zoom-full", QT_TR_NOOP("Actual size"), {QKeySequence(Qt::CTRL | Qt::Key_0)},
              [this] { m_area->SetZoom(1.0); });
    AddAction("fit-width", QT_TR_NOOP("Fit width"), {QKeySequence(Qt::CTRL | Qt::Key_1)},
              [this] { m_area->FitWidth(); });
    AddAction("fit-page", QT_TR_NOOP("Whole page"), {QKeySequence(Qt::CTRL | Qt::Key_2)},
              [this] { m_area->FitPage(); });
    m_toolbar->addSeparator();
    AddAction("close", QT_TR_NOOP("Close"), {Qt::Key_Escape}, [this] { reject(); });
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
    connect(m_pageField, &QLineEdit::returnPressed, m_area, qOverload<>(&QWidget::setFocus));
    m_toolbar->addWidget(m_pageField);
    m_pageCount->setObjectName(QStringLiteral("lblPageCount"));
    m_toolbar->addWidget(m_pageCount);
}

/// A number beyond the last page shows the last page. Anything but a number changes nothing.
void frmPreview::TakePageField() {
    bool isNumber = false;
    const int typed = m_pageField->text().toInt(&isNumber);
    if (isNumber && typed != Page() + 1)
        GoToPage(typed - 1);
    else
        ShowState();
}

void frmPreview::EditPage() {
    m_pageField->setFocus();
    m_pageField->selectAll();
}

void frmPreview::GoToPage(int page) { m_area->GoToPage(page); }

void frmPreview::ShowState() {
    const int pages = m_report.PageCount();
    m_pageField->setText(QString::number(Page() + 1));
    const QString ofPages = m_translate(QStringLiteral("of")) + u' ' + QString::number(pages);
    m_pageCount->setText(u' ' + ofPages + u' ');
    m_area->setAccessibleName(m_translate(QStringLiteral("Page")) + u' ' +
                              QString::number(Page() + 1) + u' ' + ofPages);
    m_zoomText->setText(QStringLiteral("%1 %").arg(std::lround(m_area->Zoom() * 100)));
    m_first->setEnabled(Page() > 0);
    m_previous->setEnabled(Page() > 0);
    m_next->setEnabled(Page() + 1 < pages);
    m_last->setEnabled(Page() + 1 < pages);
}

void frmPreview::Tell(const char* text, const RunTimeError& error) {
    const auto* file = dynamic_cast<const FileError*>(&error);
    const QString reason = file ? file->Cause(m_translate) : error.Description();
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
        ProgressWindow progress(QT_TR_NOOP("Print"), m_translate, this);
        PrintReport(m_report, printer, Page(), std::ref(progress));
    } catch (const RunTimeError& error) {
        Tell(QT_TR_NOOP("The report could not be printed."), error);
    }
}

void frmPreview::Export() {
    QFileDialog dialog(this, m_translate(QStringLiteral("Export to PDF")), GetMyDocumentsPath(),
                       QStringLiteral("PDF (*.pdf)"));
    dialog.setAcceptMode(QFileDialog::AcceptSave);
    dialog.setDefaultSuffix(QStringLiteral("pdf"));
    const QString name = SafeFileName(m_report.DocumentName());
    dialog.selectFile((name.isEmpty() ? QStringLiteral("Report") : name) + QStringLiteral(".pdf"));
    if (dialog.exec() != QDialog::Accepted)
        return;
    try {
        ProgressWindow progress(QT_TR_NOOP("Export to PDF"), m_translate, this);
        ExportPdf(m_report, dialog.selectedFiles().value(0), std::ref(progress));
    } catch (const RunTimeError& error) {
        Tell(QT_TR_NOOP("The report could not be exported."), error);
    }
}

void PreviewViewer::Show(DataReport& report) {
    frmPreview window(report, m_translate, Over());
    const ArrowPointer arrow;
    window.exec();
}

WorkProgress PreviewViewer::Progress() {
    const auto window = std::make_shared<ProgressWindow>(
        QT_TR_NOOP("Generating Report"), m_translate, Over(),
        QT_TR_NOOP("Please wait, generating report (this may take a few minutes)"));
    return [window](int done, int all) { return (*window)(done, all); };
}

QWidget* PreviewViewer::Over() const {
    QWidget* modal = QApplication::activeModalWidget();
    return modal ? modal : m_parent;
}
