#include "frmSplash.h"

#include "Clock.h"
#include "WindowTools.h"
#include "ui_frmSplash.h"

#include <QDeadlineTimer>
#include <QEvent>
#include <QScreen>

frmSplash::frmSplash()
    : QWidget(nullptr, Qt::SplashScreen | Qt::FramelessWindowHint | Qt::WindowStaysOnTopHint),
      m_ui(std::make_unique<Ui::frmSplash>()) {
    m_ui->setupUi(this);
    setWindowTitle(QStringLiteral("Wardlock"));
    m_ui->imgMain->setPixmap(
        ProgramIcon(QStringLiteral("splash")).pixmap(QSize(440, 240), devicePixelRatioF()));
    m_ui->imgMain->installEventFilter(this);
    adjustSize();
    move(screen()->availableGeometry().center() - rect().center());
}

frmSplash::~frmSplash() = default;

void frmSplash::ShowPainted() {
    show();
    // The window system decides when the window is first painted.
    const QDeadlineTimer limit(2000);
    for (DoEvents(); isVisible() && !m_painted && !limit.hasExpired(); DoEvents())
        Sleep(10);
}

void frmSplash::paintEvent(QPaintEvent*) { m_painted = true; }

void frmSplash::ShowVersion(const QString& text) {
    m_ui->lblVersion->setText(text);
    m_ui->lblVersion->repaint();
}

void frmSplash::ShowMessage(const QString& text) {
    m_ui->lblMsg->setText(text);
    m_ui->lblMsg->repaint();
}

void frmSplash::ClearMessage() {
    ShowMessage({});
    raise();
}

bool frmSplash::eventFilter(QObject* watched, QEvent* event) {
    if (event->type() == QEvent::MouseButtonPress)
        close();
    return QWidget::eventFilter(watched, event);
}
