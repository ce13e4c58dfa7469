#include "frmMdiMenu.h"

#include "Application.h"
#include "HomeBlocks.h"
#include "WindowTools.h"
#include "mDeclareGlobals.h"
#include "mErrorHandler.h"
#include "mTranslations.h"
#include "ui_frmMdiMenu.h"

#include <QPainter>
#include <QStyle>

#include <algorithm>

namespace {

constexpr int RefreshInterval = 60'000;                         ///< ms
constexpr int LeastPictureHeight = 40, MostPictureHeight = 110; ///< pixels
const QString OwnPicture = QStringLiteral(":/pictures/contact.svg");

/// True if the file is the one that is delivered with the program. Compared when made small, so
/// that another version of the drawing library makes no difference.
bool IsOwnPicture(const QPixmap& file) {
    const QSize small(40, 20);
    const auto madeSmall = [&small](const QPixmap& picture) {
        QImage onPaper(picture.size(), QImage::Format_RGB32);
        onPaper.fill(Qt::white);
        QPainter(&onPaper).drawPixmap(onPaper.rect(), picture);
        return onPaper.scaled(small, Qt::IgnoreAspectRatio, Qt::SmoothTransformation);
    };
    const QImage own = madeSmall(QIcon(OwnPicture).pixmap(file.size())), other = madeSmall(file);
    qint64 difference = 0;
    for (int y = 0; y < small.height(); ++y)
        for (int x = 0; x < small.width(); ++x)
            difference += std::abs(qGray(own.pixel(x, y)) - qGray(other.pixel(x, y)));
    return difference < qint64{4} * small.width() * small.height();
}

constexpr int Margin = 120; ///< twips, left and right
constexpr int VersionFromBottom = 1000;
constexpr int CopyrightFromBottom = 360;

} // namespace

frmMdiMenu::frmMdiMenu(QWidget* parent)
    : QWidget(parent), m_tmrRefresh(RefreshInterval), m_ui(std::make_unique<Ui::frmMdiMenu>()) {
    m_ui->setupUi(this);
    m_blocks = new HomeBlocks(this);
    m_ui->areaBlocks->setWidget(m_blocks);
    m_ui->areaBlocks->viewport()->setAutoFillBackground(false);
    m_blocks->setAutoFillBackground(false);
    setFocusProxy(m_blocks->findChild<QWidget*>(QStringLiteral("lvwTours")));
    connect(m_blocks, &HomeBlocks::RetryWanted, this, &frmMdiMenu::RetryWanted);
    connect(m_blocks, &HomeBlocks::ReportWanted, this, &frmMdiMenu::ReportWanted);
    connect(m_blocks, &HomeBlocks::SetupWanted, this, &frmMdiMenu::SetupWanted);
    connect(&m_tmrRefresh, &Timer::Tick, m_blocks, &HomeBlocks::Fill);
    m_tmrRefresh.SetEnabled(true);
    Guarded("Form_Load of Form frmMdiMenu", [this] {
        gCommActive = false;
        setBackgroundRole(QPalette::Base); // the pictures are drawn for this background
        setAutoFillBackground(true);
        QFont font = m_ui->lblMainTitle->font();
        font.setPointSizeF(font.pointSizeF() * 1.8);
        font.setBold(true);
        m_ui->lblMainTitle->setFont(font);
        m_ui->imgIcon->setPixmap(
            ProgramIcon(QStringLiteral("wardlock")).pixmap(QSize(40, 40), devicePixelRatioF()));
        ReadPicture();
    });
}

frmMdiMenu::~frmMdiMenu() = default;

void frmMdiMenu::Translate() {
    TranslateWindow(*this, [](const QString& text) { return ::Translate(text); });
    m_ui->lblMainTitle->setText(GetReportsTitle());
    m_ui->lblVersionMsg->setText(::Translate("Version") + u' ' + GetVersionString());
    m_ui->lblCopyright->setText(LegalNotice());
    m_blocks->Fill();
    ResizeForm();
}

void frmMdiMenu::SetUserType(OperatorType type) { m_blocks->SetUserType(type); }

void frmMdiMenu::ShowStation(bool detected, int port, const QString& device) {
    m_blocks->ShowStation(detected, port, device);
}

/// The delivered picture is drawn for white paper. Where it is used, the drawing itself is shown,
/// which has no background. A customer's own picture is shown as it is.
void frmMdiMenu::ReadPicture() {
    const QString path = ProgramFile(QStringLiteral("contact.bmp"));
    m_picture = QPixmap(path);
    if (m_picture.isNull())
        ShowPicture(*m_ui->imgContact, path); // fails with the file's name
    if (IsOwnPicture(m_picture))
        m_picture = QIcon(OwnPicture).pixmap(m_picture.size());
}

void frmMdiMenu::ShowScaledPicture(const QRect& place) {
    m_ui->imgContact->setVisible(place.isValid() && !m_picture.isNull());
    if (!m_ui->imgContact->isVisibleTo(this))
        return;
    const qreal ratio = devicePixelRatioF();
    QPixmap scaled = m_picture.scaled((place.size().toSizeF() * ratio).toSize(),
                                      Qt::KeepAspectRatio, Qt::SmoothTransformation);
    scaled.setDevicePixelRatio(ratio);
    m_ui->imgContact->setPixmap(scaled);
    m_ui->imgContact->setGeometry(place);
}

void frmMdiMenu::ResizeForm() {
    const int margin = PixelsOf(Margin);
    const int width = this->width() - 2 * margin;
    const int versionTop = height() - PixelsOf(VersionFromBottom);
    const int titleHeight = m_ui->lblMainTitle->sizeHint().height();
    m_ui->lblMainTitle->setGeometry(margin, 2 * margin, width, titleHeight);
    m_ui->lblVersionMsg->setGeometry(margin, versionTop, width,
                                     m_ui->lblVersionMsg->sizeHint().height());
    const int notice = m_ui->lblCopyright->heightForWidth(width);
    const int moreLines = notice - m_ui->lblCopyright->fontMetrics().lineSpacing();
    m_ui->lblCopyright->setGeometry(
        margin, height() - PixelsOf(CopyrightFromBottom) - std::max(0, moreLines), width, notice);
    const int top = 3 * margin + titleHeight;
    const int room = std::max(0, versionTop - top - margin);
    // The picture takes what the blocks leave. If that is too little, it stands beside the title.
    const int left = room - m_blocks->sizeHint().height() - margin;
    const int besideTitle = (width - m_ui->lblMainTitle->sizeHint().width()) / 2;
    const bool ownRow = left >= LeastPictureHeight;
    const QRect place = ownRow ? QRect(margin, top, width, std::min(left, MostPictureHeight))
                               : QRect(margin, margin, besideTitle, titleHeight + 2 * margin);
    ShowScaledPicture(QStyle::visualRect(layoutDirection(), rect(), place));
    const int blocksTop = ownRow ? place.bottom() + 1 + margin : top;
    m_ui->areaBlocks->setGeometry(margin, blocksTop, width, std::max(0, versionTop - blocksTop));
    const QSize icon = m_ui->imgIcon->sizeHint();
    const int iconLeft = isRightToLeft() ? margin : this->width() - icon.width() - margin;
    m_ui->imgIcon->setGeometry(QRect(QPoint(iconLeft, margin), icon));
}

void frmMdiMenu::resizeEvent(QResizeEvent* event) {
    QWidget::resizeEvent(event);
    ResizeForm();
}
