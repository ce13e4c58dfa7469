#include "ConsoleDock.h"

#include "CommandOptions.h"
#include "ConsoleTools.h"
#include "DockingLink.h"
#include "StoreUpkeep.h"
#include "mDeclareGlobals.h"
#include "mTranslations.h"

#include <QEventLoop>
#include <QFileInfo>
#include <QRegularExpression>

namespace {

/// Nobody can press Cancel if the dock never answers. Milliseconds from the start of the
/// transfer, whose own pauses take 1.3 seconds.
constexpr int SilenceLimit = 6500;

/// Discards the progress.
class NoTransferView : public TransferView {
    void ShowText(const QString&) override {}
    void ShowReaderId(const QString&) override {}
    void ShowWarning(bool) override {}
    void ShowProgress(int, int) override {}
    void ShowProgressText(const QString&) override {}
    void Beep() override {}
};

/// Opens the port and looks for the docking station. If that fails, says why and returns false.
/// `device` is the path of a serial device, or COM1 to COM8.
bool Connect(DockingLink& link, const QString& device) {
    static const QRegularExpression portName(QStringLiteral("^COM([1-8]):?$"),
                                             QRegularExpression::CaseInsensitiveOption);
    const auto match = portName.match(device);
    if (!match.hasMatch())
        OverrideDevice(QFileInfo::exists(device) ? QFileInfo(device).absoluteFilePath() : device);
    if (!link.OpenPort(match.hasMatch() ? match.captured(1).toInt() : 1)) {
        Complain(device + QStringLiteral(": ") + Translate("Could not open the com port.") + u' ' +
                 Translate("Check settings and try again."));
        return false;
    }
    gDockingDetected = link.DetectStation();
    if (!gDockingDetected)
        Complain(Translate("Could not connect to the docking station.") + u' ' +
                 Translate("Check hardware and settings and try again."));
    return gDockingDetected;
}

} // namespace

CommandRun DockRun(CLI::App& options,
                   std::function<bool(DockingLink& link, const ConsoleBoxes& boxes)> work) {
    const auto device = std::make_shared<QString>();
    AddPath(options, "--device", *device, "a serial device, or COM1 to COM8", Presence::Required);
    return [device, work = std::move(work)](const ConsoleBoxes& boxes) {
        DockingLink link;
        link.GivesUpInTime = true;
        return Connect(link, *device) && work(link, boxes);
    };
}

CommandRun
JsonDockRun(CLI::App& options,
            std::function<bool(DockingLink& link, const ConsoleBoxes& boxes, bool json)> work) {
    const auto json = std::make_shared<bool>(false);
    CommandRun run = DockRun(
        options, [json, work = std::move(work)](DockingLink& link, const ConsoleBoxes& boxes) {
            return work(link, boxes, *json);
        });
    AddJson(options, *json);
    return run;
}

TransferResult RunConsoleTransfer(DockingLink& link, TransferPurpose purpose) {
    NoTransferView view;
    MemoryTransfer transfer(link, view);
    transfer.SetPurpose(purpose);
    QEventLoop loop;
    QObject::connect(&transfer, &MemoryTransfer::Closed, &loop, &QEventLoop::quit);
    Timer silence(SilenceLimit);
    QObject::connect(&silence, &Timer::Tick, &loop, [&] {
        silence.SetEnabled(false);
        if (!transfer.HasAnswered())
            transfer.Cancel();
    });
    silence.SetEnabled(true);
    transfer.Start();
    loop.exec();
    return transfer.Result();
}

void CheckStoreBeforeErasing() {
    CheckStore();
    TellOfDamage();
}
