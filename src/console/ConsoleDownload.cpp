#include "ConsoleDownload.h"

#include "Format.h"
#include "mTranslations.h"

#include <QEventLoop>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>

namespace {

/// Nobody is there to press Cancel when the dock never answers. Counted from the start of the
/// transfer, whose own pauses take 1.3 seconds.
constexpr int SilenceLimit = 6500;

/// A progress that nobody looks at.
class NoTransferView : public TransferView {
    void ShowText(const QString&) override {}
    void ShowReaderId(const QString&) override {}
    void ShowWarning(bool) override {}
    void ShowProgress(int, int) override {}
    void ShowProgressText(const QString&) override {}
    void Beep() override {}
};

} // namespace

TransferResult ConsoleDownload::RunTransfer(TransferPurpose purpose) {
    return RunConsoleTransfer(m_link, purpose);
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

QByteArray DownloadJson(const MemoryDownload::Outcome& outcome) {
    QJsonArray touches;
    for (const cRawButton& touch : outcome.touches)
        touches += QJsonObject{{QStringLiteral("time"),
                                Format(touch.DateAndTime, QStringLiteral("yyyy-mm-ddThh:nn:ss"))},
                               {QStringLiteral("code"), touch.ButtonCode},
                               {QStringLiteral("name"), touch.Name},
                               {QStringLiteral("group"), touch.GroupName},
                               {QStringLiteral("type"), touch.EventType}};
    return QJsonDocument(QJsonObject{{QStringLiteral("reader"), outcome.readerId},
                                     {QStringLiteral("touches"), touches},
                                     {QStringLiteral("stored"), outcome.rowsStored},
                                     {QStringLiteral("erased"), outcome.erased}})
        .toJson();
}

QByteArray DownloadText(const MemoryDownload::Outcome& outcome, const QString& message) {
    QString text;
    int number = 0;
    for (const cRawButton& touch : outcome.touches)
        text += QString::number(++number).rightJustified(6) + QStringLiteral("  ") +
                Format(touch.DateAndTime, QStringLiteral("Short Date")) + QStringLiteral("  ") +
                Format(touch.DateAndTime, QStringLiteral("hh:mm")) + QStringLiteral("  ") +
                touch.ButtonCode + QStringLiteral("  ") + touch.Name.leftJustified(28) +
                QStringLiteral("  ") + touch.GroupName + u'\n';
    text += Translate("Reader ID:") + u' ' + outcome.readerId + u'\n' + message + u'\n';
    return text.toUtf8();
}
