#pragma once

#include "Clock.h"
#include "CommPort.h"
#include "Dock.h"
#include "DockingLink.h"
#include "Frames.h"
#include "MemoryDownload.h"
#include "MemoryTransfer.h"
#include "Recordset.h"
#include "ScriptedBoxes.h"
#include "TestHome.h"
#include "TestTable.h"

#include <QEventLoop>
#include <QSocketNotifier>

#include <fcntl.h>
#include <stdexcept>
#include <stdlib.h>
#include <unistd.h>

// Shared by the tests of the reader link: memory images made by hand, the far end of the line (the
// simulated dock, or a bare pseudo-terminal), and a download without windows.

/// The frames of a memory image. `identifier` is in the order of the wire.
inline QByteArrayList ImageFrames(int count, const QByteArrayList& records, int frames,
                                  const QByteArray& identifier = Hex("A7314B58")) {
    QByteArrayList result;
    QByteArray memory = records.join();
    for (int k = 0; k < frames; ++k) {
        QByteArray payload(1, '\xF3');
        if (k == 0)
            payload += QByteArray(1, static_cast<char>(count)) + static_cast<char>(count >> 8) +
                       identifier + Hex("0600");
        const qsizetype room = 241 - payload.size();
        result += FrameOf(payload + memory.left(room).leftJustified(room, '\0'));
        memory.remove(0, room);
    }
    return result;
}

/// A marker and touches with codes that count up.
inline QByteArrayList SomeRecords(int count) {
    QByteArrayList records{Hex("0F0100AA")};
    for (int i = 1; i < count; ++i)
        records += QByteArray(1, static_cast<char>(i)) + static_cast<char>(0x40 + i / 256) +
                   '\x1A' + static_cast<char>(i % 60);
    return records;
}

/// A touch as "CODE d.m.yyyy h:nn".
inline QString TouchText(const QString& code, DateTime time) {
    return code + time.ToQDate().toString(" d.M.yyyy ") + time.ToQTime().toString("H:mm");
}

/// The stored touches, in the order of storing.
inline QStringList StoredTouches() {
    QStringList rows;
    Recordset events;
    events.Open("SELECT * FROM tblEvents ORDER BY ID", *gConn);
    for (; !events.Eof(); events.MoveNext())
        rows += TouchText(events.Text(u"tButtonCode"), events.Date(u"dtDateTime"));
    return rows;
}

inline void ForgetTouches() { gConn->Execute("DELETE * FROM tblEvents"); }

/// The far end of a line without a dock. The test says what it answers to each command.
class LineEnd {
public:
    LineEnd() : m_master(posix_openpt(O_RDWR | O_NOCTTY | O_NONBLOCK)) {
        if (m_master < 0 || grantpt(m_master) != 0 || unlockpt(m_master) != 0)
            throw std::runtime_error("no pseudo-terminal");
        OverrideDevice(QString::fromLocal8Bit(ptsname(m_master)));
        m_notifier = std::make_unique<QSocketNotifier>(m_master, QSocketNotifier::Read);
        QObject::connect(m_notifier.get(), &QSocketNotifier::activated, [this] { Serve(); });
    }
    ~LineEnd() {
        m_notifier.reset();
        close(m_master);
    }

    void Send(const QByteArray& bytes) const {
        if (write(m_master, bytes.constData(), static_cast<size_t>(bytes.size())) != bytes.size())
            throw std::runtime_error("the line is full");
    }

    /// The answer to each command payload, and how often each command came.
    QMap<QByteArray, QByteArray> Answers;
    QMap<QByteArray, int> Commands;

private:
    void Serve() {
        char bytes[512];
        m_received.append(bytes, std::max<ssize_t>(read(m_master, bytes, sizeof bytes), 0));
        for (;;) {
            const qsizetype at = m_received.indexOf(Hex("FFFFFF55"));
            if (at < 0 || m_received.size() < at + 10)
                return;
            const qsizetype length = m_received.at(at + 9);
            if (m_received.size() < at + length + 11)
                return;
            const QByteArray payload = m_received.mid(at + 10, length);
            m_received.remove(0, at + length + 11);
            ++Commands[payload];
            Send(Answers.value(payload));
        }
    }

    int m_master;
    std::unique_ptr<QSocketNotifier> m_notifier;
    QByteArray m_received;
};

/// A download without windows, which records what it was shown.
class RecordingView : public DownloadView, public TransferView {
public:
    explicit RecordingView(DockingLink& link) : m_link(link) {}

    /// Cancels the next transfer once the reader is known.
    bool CancelAtFirstFrame = false;
    /// After this many milliseconds a transfer is cancelled, as an operator would do.
    int Patience = 20'000;

    TransferResult RunTransfer(TransferPurpose purpose) override {
        MemoryTransfer transfer(m_link, *this);
        transfer.SetPurpose(purpose);
        m_transfer = &transfer;
        Texts.clear();
        WasCancelled = false;
        QEventLoop loop;
        QObject::connect(&transfer, &MemoryTransfer::Closed, &loop, &QEventLoop::quit);
        Timer patience(Patience);
        QObject::connect(&patience, &Timer::Tick, &loop, [&] {
            WasCancelled = true;
            transfer.Cancel();
        });
        patience.SetEnabled(true);
        transfer.Start();
        loop.exec();
        HasAnswered = transfer.HasAnswered();
        return transfer.Result();
    }
    void ShowBusy(bool busy) override { Busy += busy; }
    void ShowMessageText(const QString& text) override { MessageText = text; }
    void ClearList() override { Listed = 0; }
    void ShowTouches(const colRawButtons& touches) override { Listed = touches.size(); }
    void ShowLastRow() override {}
    void ShowStatus(const QString&) override {}

    void ShowText(const QString& text) override { Texts += text; }
    void ShowReaderId(const QString&) override {
        if (std::exchange(CancelAtFirstFrame, false))
            m_transfer->Cancel();
    }
    void ShowWarning(bool visible) override { Warned += visible; }
    void ShowProgress(int value, int maximum) override {
        ProgressInRange = ProgressInRange && value >= 0 && value <= maximum;
    }
    void ShowProgressText(const QString&) override {}
    void Beep() override {}

    QString MessageText;
    /// What the last transfer showed.
    QStringList Texts;
    QList<bool> Busy, Warned;
    std::size_t Listed = 0;
    bool ProgressInRange = true, WasCancelled = false, HasAnswered = false;

private:
    DockingLink& m_link;
    MemoryTransfer* m_transfer = nullptr;
};

/// A station with its port open to a simulated dock, at 7:15 on 2 March 2026, in quick time.
struct Station {
    static constexpr double Speed = 15;
    static DateTime Start() { return DateTime::FromQt(QDateTime(QDate(2026, 3, 2), QTime(7, 15))); }

    explicit Station(const QByteArray& scenario, double speed = Speed, DateTime start = Start())
        : clock(start, speed), dock(scenario) {
        OverrideDevice(dock.Device());
        if (!link.OpenPort(1))
            throw std::runtime_error("no line to the dock");
    }

    TestClock clock;
    Dock dock;
    DockingLink link;
    RecordingView view{link};
    MemoryDownload download{link, view};
};
