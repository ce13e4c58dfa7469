// What the main window does with the link: connects, lets the operator choose the port, shows the
// state, and runs the commands of the Tools menu on a docked reader.

#include "Clock.h"
#include "MemoryImage.h"
#include "WindowTools.h"
#include "frmDownload.h"
#include "frmFirmwareVersion.h"
#include "frmGoOnline.h"
#include "frmMain.h"
#include "frmMdiDownload.h"
#include "frmPrpComms.h"
#include "frmSetTime.h"
#include "mErrorHandler.h"
#include "mTranslations.h"

#include <QAction>
#include <QApplication>
#include <QLabel>

namespace {

/// Which device was tried, and what to do next.
QString PortAdvice(int port, const char* next) {
    const QString device = DeviceOfPort(port);
    return Labelled(QStringLiteral("COM%1").arg(port),
                    device.isEmpty() ? Translate("no device") : device) +
           u'\n' + Translate(next);
}

} // namespace

void frmMain::GoConnect() {
    for (bool done = false; !done;) {
        done = true;
        m_state.PrepareToConnect();
        DoEventsWithoutInput();
        frmGoOnline dialog(m_state.Link(), this);
        dialog.Online = m_state.Online();
        dialog.MyCommPort = QString::number(m_state.Port);
        dialog.MyCommSettings = DockingLink::CommSettings;
        dialog.exec();
        if (!dialog.OK()) {
            m_state.Set(false, false);
            IvMessageBox(
                Translate("Could not open the com port.") + u'\n' +
                    Translate("Check settings and try again.") + u'\n' +
                    Translate("Working in Offline Mode"),
                PortAdvice(m_state.Port, QT_TR_NOOP("The master chooses the port under Tools, Com "
                                                    "Options.")) +
                    u'\n' + m_state.Link().OpenFault(),
                MessageKind::Information);
        } else {
            m_state.Set(dialog.Online, dialog.DockingDetected);
            if (!gDockingDetected) {
                const auto answer = IvMessageBox(
                    Translate("Could not connect to the docking station.") + u'\n' +
                        Translate("Check hardware and settings and try again."),
                    PortAdvice(m_state.Port, QT_TR_NOOP("Is the docking station plugged in, and "
                                                        "is this its device?")),
                    MessageKind::Information, MessageButtons::RetryIgnore);
                done = answer == MessageAnswer::Ignore;
            }
        }
        ShowOnlineMode(m_state.Online());
        ShowDockingDetect(gDockingDetected);
    }
}

/// Every conversation has a modal window over it or makes the download page busy.
bool frmMain::MayBeTalking() const {
    return QApplication::activeModalWidget() || (m_downloadPage && m_downloadPage->Busy());
}

void frmMain::ShowGoneDevice() {
    const QString device = m_state.GoneDevice();
    m_panelGone->setText(device.isEmpty()
                             ? QString()
                             : FormatStr(Translate("%0:s is gone. Plug it in again."), {device}));
}

void frmMain::ShowStationGone(const QString& device) {
    ShowDockingDetect(false);
    WriteLog(QStringLiteral("The docking station at %1 is gone").arg(device));
}

void frmMain::ShowStationFound(const QString& device) {
    ShowDockingDetect(true);
    WriteLog(QStringLiteral("The docking station at %1 is back").arg(device));
}

void frmMain::GoOffline() { m_state.Close(); }

void frmMain::GoOptions() {
    Guarded("GoOptions of Form frmMain", [this] {
        GoOffline();
        DoEventsWithoutInput();
        ShowOnlineMode(m_state.Online());
        frmPrpComms dialog(this);
        dialog.comPort = m_state.Port;
        dialog.Populate();
        dialog.exec();
        if (!dialog.OK())
            return;
        m_state.Port = dialog.comPort;
        SavePortNumber(m_state.Port);
        GoConnect();
    });
}

void frmMain::mnuToolsPipeOptions_Click() {
    {
        frmSetTime dialog(m_state.Link(), this);
        dialog.exec();
    }
    GoHome();
}

void frmMain::mnuToolsClearPipe_Click() {
    GoOnline();
    if (!m_downloadPage)
        return;
    Guarded("mnuToolsClearPipe_Click of Form frmMain", [this] {
        bool succeeded = false;
        m_downloadPage->EraseReader(false, succeeded);
    });
}

void frmMain::mnuToolsReaderFW_Click() {
    Guarded("getFWVersion of Form frmFirmwareVersion", [this] {
        TransferResult result;
        {
            const Hourglass hourglass;
            frmDownload dialog(m_state.Link(), this);
            result = dialog.Run(TransferPurpose::Firmware);
        }
        if (!NamesFirmware(result.tFirmware))
            return;
        frmFirmwareVersion dialog(result.tFirmware, this);
        dialog.exec();
    });
}

void frmMain::ShowStatus(const QString& text, const QString& icon) {
    m_panel1->setText(text);
    ShowIcon(*m_panelPicture, icon);
}

void frmMain::ShowDockingDetect(bool detected) {
    ShowStatus(Translate(detected ? "Docking Station : OK" : "Docking Station : Not Detected"),
               detected ? QStringLiteral("online") : QStringLiteral("offline"));
}

void frmMain::ShowOnlineMode(bool online) {
    ShowStatus(online ? QStringLiteral("Status: ONLINE, COM %1").arg(m_state.Port)
                      : QStringLiteral("Status: Offline"),
               online ? QStringLiteral("online") : QStringLiteral("offline"));
}
