#include "frmGoOnline.h"

#include "DockingLink.h"
#include "WindowTools.h"
#include "mDeclareGlobals.h"
#include "mTranslations.h"
#include "ui_frmGoOnline.h"

#include <utility>

frmGoOnline::frmGoOnline(DockingLink& link, QWidget* parent)
    : QDialog(parent), m_ui(std::make_unique<Ui::frmGoOnline>()), m_link(link), m_tmrStart(200) {
    m_ui->setupUi(this);
    TranslateWindow(*this, Translated);
    ShowIcon(*m_ui->imgDock, QStringLiteral("dock"));
    connect(&m_tmrStart, &Timer::Tick, this, &frmGoOnline::Connect);
    m_tmrStart.SetEnabled(true);
}

frmGoOnline::~frmGoOnline() = default;

void frmGoOnline::message(const QString& text) {
    m_ui->lblMsgs->setText(text);
    m_ui->lblMsgs->repaint();
}

void frmGoOnline::AppendMessage(const QString& text) {
    message(m_ui->lblMsgs->text() + u' ' + text);
}

void frmGoOnline::Connect() {
    m_tmrStart.SetEnabled(false);
    message(Translate("Ready..."));
    message(Translate("Opening COM port...") + QStringLiteral("\n\n"));
    Sleep(300);
    if (!m_link.OpenPort(MyCommPort.toInt(), MyCommSettings)) {
        AppendMessage(Translate("Could Not Open Com ") + MyCommPort + u'\n' +
                      Translate("Please try another COM port or check that the COM port is not in "
                                "use by another program."));
        m_link.ClosePort();
        Online = false;
        done(Rejected);
        return;
    }
    AppendMessage(Translate("OK"));
    DoEvents();
    m_link.InBuffer().Clear();
    Sleep(300);
    message(Translate("Checking Docking Station...") + QStringLiteral("\n\n"));
    DockingDetected = m_link.DetectStation();
    if (std::exchange(m_calledOff, false))
        gWaitCancelled = gCommActive = false;
    AppendMessage(Translate(DockingDetected ? "OK" : "Failed"));
    accept();
}

void frmGoOnline::reject() { m_calledOff = m_link.EndOverdueWait() || m_calledOff; }
