#include "frmMdiDownload.h"

#include "DockingLink.h"
#include "WindowTools.h"
#include "frmDownload.h"
#include "mDeclareGlobals.h"
#include "mTranslations.h"
#include "ui_frmMdiDownload.h"

#include <QApplication>
#include <QCloseEvent>
#include <QHeaderView>
#include <QTimer>

#include <utility>

namespace {

/// Each column's part of the width, in hundredths.
constexpr int ColumnShares[TouchListModel::ColumnCount] = {10, 15, 10, 10, 20, 35};

} // namespace

frmMdiDownload::frmMdiDownload(DockingLink& link, QWidget* parent)
    : QWidget(parent), m_ui(std::make_unique<Ui::frmMdiDownload>()), m_link(link),
      m_download(link, *this) {
    m_ui->setupUi(this);
    m_ui->cmdOnline_0->setIcon(ProgramIcon(QStringLiteral("download")));
    m_ui->cmdOnline_1->setIcon(ProgramIcon(QStringLiteral("erase")));
    m_ui->lvwDownload->setModel(&m_touches);
    m_ui->lvwDownload->header()->setStretchLastSection(false);
    // Their places stay while they are hidden, so that nothing else moves.
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
}

void frmMdiDownload::ShowLink(bool detected) {
    m_ui->cmdOnline_0->setEnabled(detected);
    m_ui->cmdOnline_1->setEnabled(detected);
}

void frmMdiDownload::cmdOnline_Click(int index) {
    if (index == 0) {
        m_download.Run();
    } else {
        bool succeeded = false;
        EraseReader(false, succeeded);
    }
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

void frmMdiDownload::ClearList() { m_touches.SetTouches({}); }

void frmMdiDownload::ShowTouches(const colRawButtons& touches) { m_touches.SetTouches(touches); }

void frmMdiDownload::ShowLastRow() {
    const QModelIndex last = m_touches.index(m_touches.rowCount() - 1, 0);
    if (!last.isValid())
        return;
    m_ui->lvwDownload->setCurrentIndex(last);
    m_ui->lvwDownload->scrollTo(last);
}

void frmMdiDownload::ShowStatus(const QString& text) { emit StatusChanged(text); }

void frmMdiDownload::SizeColumns() {
    const int hundredth = (TwipsOf(m_ui->lvwDownload->width()) - 240) / 100;
    for (int column = 0; column < TouchListModel::ColumnCount; ++column)
        m_ui->lvwDownload->setColumnWidth(column, PixelsOf(ColumnShares[column] * hundredth));
}

void frmMdiDownload::resizeEvent(QResizeEvent* event) {
    QWidget::resizeEvent(event);
    SizeColumns();
}

void frmMdiDownload::closeEvent(QCloseEvent* event) {
    event->setAccepted(!Busy());
    // A wait that would last until a frame comes must not keep the window open.
    if (Busy() && m_link.EndOverdueWait())
        m_closeWhenDone = true;
}
