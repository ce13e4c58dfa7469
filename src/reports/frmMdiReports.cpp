#include "frmMdiReports.h"

#include "ListColumns.h"
#include "ReportCatalogue.h"
#include "ReportNeeds.h"
#include "WindowTools.h"
#include "mErrorHandler.h"
#include "mTranslations.h"
#include "ui_frmMdiReports.h"

#include <QAction>
#include <QKeyEvent>

namespace {

constexpr int KeyRole = Qt::UserRole;

} // namespace

frmMdiReports::frmMdiReports(ReportViewer& viewer, QWidget* parent)
    : QWidget(parent), m_ui(std::make_unique<Ui::frmMdiReports>()), m_viewer(viewer) {
    m_ui->setupUi(this);
    TranslateWindow(*this, Translated);
    connect(m_ui->lvwReports, &QTreeWidget::itemDoubleClicked, this, &frmMdiReports::OpenSelected);
    m_ui->lvwReports->installEventFilter(this);
    auto* open = new QAction(ProgramIcon(QStringLiteral("report")), m_ui->cmdOpen->text(), this);
    open->setShortcut(QKeySequence::Open);
    connect(open, &QAction::triggered, this, &frmMdiReports::OpenSelected);
    addAction(open);
    m_ui->cmdOpen->setIcon(open->icon());
    m_ui->cmdOpen->setToolTip(Translate("Open the dialog of the selected report") +
                              QStringLiteral(" (") +
                              open->shortcut().toString(QKeySequence::NativeText) + u')');
    connect(m_ui->cmdOpen, &QPushButton::clicked, this, &frmMdiReports::OpenSelected);
    connect(m_ui->lvwReports, &QTreeWidget::itemSelectionChanged, this,
            [this] { m_ui->cmdOpen->setEnabled(SelectedRow()); });
    m_ui->lvwReports->addAction(open);
    m_ui->lvwReports->setContextMenuPolicy(Qt::ActionsContextMenu);
    m_ui->lvwReports->setIconSize(QSize(20, 20));
    LoadReportList();
    m_ui->lvwReports->setCurrentItem(m_ui->lvwReports->topLevelItem(0));
    setFocusProxy(m_ui->lvwReports);
}

frmMdiReports::~frmMdiReports() = default;

void frmMdiReports::LoadReportList() {
    m_ui->lvwReports->clear();
    m_ui->lvwReports->setHeaderLabels({Translate("Report Name"), Translate("Description")});
    for (const ReportRow& row : ReportCatalogue())
        AddReportItem(QString::fromUtf8(row.key), Translate(row.name), Translate(row.description));
    ManageColumns(*m_ui->lvwReports, QStringLiteral("frmMdiReports"), {50, 50});
}

void frmMdiReports::AddReportItem(const QString& key, const QString& name,
                                  const QString& description) {
    auto* row = new QTreeWidgetItem(m_ui->lvwReports, {name, description});
    row->setIcon(0, ProgramIcon(QStringLiteral("report")));
    row->setData(0, KeyRole, key);
    row->setToolTip(0, description);
    row->setToolTip(1, description);
}

bool frmMdiReports::eventFilter(QObject* watched, QEvent* event) {
    if (event->type() == QEvent::KeyPress) {
        const int key = static_cast<QKeyEvent*>(event)->key();
        const QTreeWidgetItem* row = SelectedRow();
        if (row && (key == Qt::Key_Return || key == Qt::Key_Enter)) {
            // Caption and key are swapped here, so Enter finds no report and only the icon blinks.
            // Operators are used to this; Open Report (Ctrl+O) is the key that opens.
            ReportParamShow(row->text(0), row->data(0, KeyRole).toString());
            return true;
        }
    }
    return QWidget::eventFilter(watched, event);
}

/// The current row may not be selected: a click with Ctrl deselects it.
QTreeWidgetItem* frmMdiReports::SelectedRow() const {
    return m_ui->lvwReports->selectedItems().value(0);
}

void frmMdiReports::OpenSelected() {
    Guarded("lvwReports_DblClick of Form frmMdiReports", [this] {
        if (const QTreeWidgetItem* row = SelectedRow())
            ReportParamShow(row->data(0, KeyRole).toString(), row->text(0));
    });
}

void frmMdiReports::ReportParamShow(const QString& key, const QString& text) {
    Guarded("ReportParamShow of Form frmMdiReports", [&] {
        QTreeWidgetItem* row = SelectedRow();
        if (!row)
            return;
        row->setIcon(0, ProgramIcon(QStringLiteral("arrow")));
        for (const ReportRow& report : ReportCatalogue())
            if (key == QString::fromUtf8(report.key))
                OpenReport(report, text);
        row->setIcon(0, ProgramIcon(QStringLiteral("report")));
    });
}

void frmMdiReports::OpenReport(const ReportRow& report, const QString& caption) {
    const auto open = [&] {
        if (ReportNeedsAreMet(report.needs))
            report.open(caption, m_viewer, window());
    };
    if (report.openLabel)
        Guarded(report.openLabel, open);
    else
        open();
}
