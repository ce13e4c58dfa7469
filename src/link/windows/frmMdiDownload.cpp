#include "frmMdiDownload.h"

#include "DockingLink.h"
#include "Format.h"
#include "WindowTools.h"
#include "frmDownload.h"
#include "mDeclareGlobals.h"
#include "mErrorHandler.h"
#include "mTranslations.h"
#include "ui_frmMdiDownload.h"

#include <QApplication>
#include <QCloseEvent>
#include <QHeaderView>
#include <QTimer>

#include <utility>

namespace {

/// Each column's share of the width, in hundredths.
constexpr int ColumnShares[] = {10, 15, 10, 10, 20, 35};

ListRow RowOf(const cRawButton& touch, qsizetype number) {
    return {{QString::number(number), Format(touch.DateAndTime, QStringLiteral("Short Date")),
             Format(touch.DateAndTime, QStringLiteral("hh:mm")), touch.ButtonCode, touch.Name,
             touch.GroupName},
            {}};
}

} // namespace

frmMdiDownload::frmMdiDownload(DockingLink& link, QWidget* parent)
    : QWidget(parent), m_ui(std::make_unique<Ui::frmMdiDownload>()), m_link(link),
      m_download(link, *this) {
    m_ui->setupUi(this);
    m_ui->cmdOnline_0->setIcon(ProgramIcon(QStringLiteral("download")));
    m_ui->cmdOnline_1->setIcon(ProgramIcon(QStringLiteral("erase")));
    m_ui->lvwDownload->setModel(&m_touches);
    m_ui->lvwDownload->header()->setStretchLastSection(false);
    // They keep their places while they are hidden, so that nothing else moves.
    for (QLabel* label : {m_ui->lblMsg, m_ui->lblWarning}) {
        QSizePolicy policy = label->sizePolicy();
        policy.setRetainSizeWhenHidden(true);
        label->setSizePolicy(policy);
        label->hide();
    }
    setFocusProxy(m_ui->cmdOnline_0);
    Translate();
    connect(m_ui->cmdOnline_0, &QPushButton::clicked, this, [this] { cmdOnline_Click(0); });
    connect(m_ui->cmdOnline_1, &QPushButton::clicked, this, [this] { cmdOnline_Click(1); });
}

frmMdiDownload::~frmMdiDownload() = default;

void frmMdiDownload::Translate() {
    TranslateWindow(*this, [](const QString& text) { return ::Translate(text); });
    m_touches.SetColumns({::Translate("Number"), ::Translate("Date"), ::Translate("Time"),
                          ::Translate("ID"), ::Translate("Button Name"), ::Translate("Group Name")},
                         {1, 2, 3});
}

void frmMdiDownload::ShowLink(bool detected) {
    m_ui->cmdOnline_0->setEnabled(detected);
    m_ui->cmdOnline_1->setEnabled(detected);
}

void frmMdiDownload::cmdOnline_Click(int index) {
    if (index == 0)
        m_download.Run();
    else
        Guarded("cmdOnline_Click of Form frmMdiDownload", [this] {
            bool succeeded = false;
            EraseReader(false, succeeded);
        });
}

void frmMdiDownload::EraseReader(bool silent, bool& succeeded) {
    m_download.EraseReader(silent, succeeded);
}

TransferResult frmMdiDownload::RunTransfer(TransferPurpose purpose) {
    frmDownload dialog(m_link, window());
    return dialog.Run(purpose);
}

void frmMdiDownload::ShowBusy(bool busy) {
    if (busy)
        QApplication::setOverrideCursor(Qt::WaitCursor);
    else
        QApplication::restoreOverrideCursor();
    m_ui->cmdOnline_0->setEnabled(!busy);
    m_ui->cmdOnline_1->setEnabled(!busy);
    emit BusyChanged(busy);
    if (!busy && std::exchange(m_closeWhenDone, false)) {
        gWaitCancelled = false;
        QTimer::singleShot(0, window(), &QWidget::close);
    }
}

void frmMdiDownload::ShowMessageText(const QString& text) {
    m_ui->lblMsg->setText(text);
    m_ui->lblMsg->setVisible(!text.isEmpty());
}

void frmMdiDownload::ShowWarning(bool visible) { m_ui->lblWarning->setVisible(visible); }

void frmMdiDownload::ClearList() { m_touches.SetRows({}); }

void frmMdiDownload::ShowTouches(const colRawButtons& touches) {
    QList<ListRow> rows;
    for (const cRawButton& touch : touches)
        rows += RowOf(touch, rows.size() + 1);
    m_touches.SetRows(std::move(rows));
}

void frmMdiDownload::ShowLastRow() { SelectPlace(*m_ui->lvwDownload, m_touches.rowCount() - 1); }

void frmMdiDownload::ShowStatus(const QString& text) { emit StatusChanged(text); }

void frmMdiDownload::SizeColumns() {
    const int hundredth = (TwipsOf(m_ui->lvwDownload->width()) - 240) / 100;
    int column = 0;
    for (const int share : ColumnShares)
        m_ui->lvwDownload->setColumnWidth(column++, PixelsOf(share * hundredth));
}

void frmMdiDownload::resizeEvent(QResizeEvent* event) {
    QWidget::resizeEvent(event);
    SizeColumns();
}

void frmMdiDownload::closeEvent(QCloseEvent* event) {
    event->setAccepted(!Busy());
    // A wait that would only end with a frame must not keep the window open.
    if (Busy() && m_link.EndOverdueWait())
        m_closeWhenDone = true;
}
