#include "frmMdiMenu.h"

#include "Application.h"
#include "WindowTools.h"
#include "mDeclareGlobals.h"
#include "mErrorHandler.h"
#include "mTranslations.h"
#include "ui_frmMdiMenu.h"

namespace {

constexpr int Margin = 120; ///< twips, left and right
constexpr int VersionFromBottom = 1000;
constexpr int CopyrightFromBottom = 360;

} // namespace

frmMdiMenu::frmMdiMenu(QWidget* parent)
    : QWidget(parent), m_ui(std::make_unique<Ui::frmMdiMenu>()) {
    m_ui->setupUi(this);
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
        ShowPicture(*m_ui->imgContact, ProgramFile(QStringLiteral("contact.bmp")));
    });
}

frmMdiMenu::~frmMdiMenu() = default;

void frmMdiMenu::Translate() {
    TranslateWindow(*this, [](const QString& text) { return ::Translate(text); });
    m_ui->lblMainTitle->setText(GetReportsTitle());
    m_ui->lblVersionMsg->setText(::Translate("Version") + u' ' + GetVersionString());
    m_ui->lblCopyright->setText(LegalNotice());
    ResizeForm();
}

void frmMdiMenu::ResizeForm() {
    const int margin = PixelsOf(Margin);
    const int width = this->width() - 2 * margin;
    const int versionTop = height() - PixelsOf(VersionFromBottom);
    const int titleHeight = m_ui->lblMainTitle->sizeHint().height();
    m_ui->lblMainTitle->setGeometry(margin, 2 * margin, width, titleHeight);
    m_ui->lblVersionMsg->setGeometry(margin, versionTop, width,
                                     m_ui->lblVersionMsg->sizeHint().height());
    m_ui->lblCopyright->setGeometry(margin, height() - PixelsOf(CopyrightFromBottom), width,
                                    m_ui->lblCopyright->sizeHint().height());
    const int pictureTop = 3 * margin + titleHeight;
    m_ui->imgContact->setGeometry(margin, pictureTop, width,
                                  std::max(0, versionTop - pictureTop - margin));
    const QSize icon = m_ui->imgIcon->sizeHint();
    const int iconLeft = isRightToLeft() ? margin : this->width() - icon.width() - margin;
    m_ui->imgIcon->setGeometry(QRect(QPoint(iconLeft, margin), icon));
}

void frmMdiMenu::resizeEvent(QResizeEvent* event) {
    QWidget::resizeEvent(event);
    ResizeForm();
}
