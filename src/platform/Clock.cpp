#include "Clock.h"

#include <QCoreApplication>
#include <QElapsedTimer>
#include <QPointer>
#include <QThread>

#include <algorithm>
#include <optional>

namespace {

struct Override {
    DateTime start;
    double speed;
    QElapsedTimer elapsed;
};

std::optional<Override>& TheOverride() {
    static std::optional<Override> value;
    return value;
}

int Shortened(int milliseconds) {
    const double speed = TheOverride() ? TheOverride()->speed : 1.0;
    return static_cast<int>(milliseconds / speed);
}

} // namespace

DateTime Now() {
    const auto& faked = TheOverride();
    if (!faked)
        return DateTime::FromQt(QDateTime::currentDateTime());
    const auto passed = static_cast<double>(faked->elapsed.nsecsElapsed()) / 1e6 * faked->speed;
    return faked->start + DateTime::FromMilliseconds(static_cast<std::int64_t>(passed));
}

DateTime Today() { return Now().DatePart(); }

double SecondsOfDay() { return static_cast<double>(Now().TimePart().Milliseconds()) / 1000.0; }

std::int64_t MillisecondsRunning() {
    static const QElapsedTimer running = [] {
        QElapsedTimer timer;
        timer.start();
        return timer;
    }();
    const double speed = TheOverride() ? TheOverride()->speed : 1.0;
    return static_cast<std::int64_t>(static_cast<double>(running.nsecsElapsed()) / 1e6 * speed);
}

void Sleep(int milliseconds) {
    QThread::msleep(static_cast<unsigned long>(std::max(0, Shortened(milliseconds))));
}

void DoEvents() { QCoreApplication::processEvents(); }

void DoEventsWithoutInput() { QCoreApplication::processEvents(QEventLoop::ExcludeUserInputEvents); }

Timer::Timer(int intervalMilliseconds, QObject* parent)
    : QObject(parent), m_interval(intervalMilliseconds) {
    m_timer.setTimerType(Qt::PreciseTimer);
    connect(&m_timer, &QTimer::timeout, this, &Timer::Fire);
}

void Timer::SetEnabled(bool enabled) {
    if (enabled)
        m_timer.start(std::max(1, Shortened(m_interval)));
    else
        m_timer.stop();
}

void Timer::SetInterval(int milliseconds) {
    m_interval = milliseconds;
    if (m_timer.isActive())
        SetEnabled(true);
}

void Timer::Fire() {
    if (m_firing)
        return;
    m_firing = true;
    const QPointer<Timer> self(this);
    emit Tick();
    if (self)
        m_firing = false;
}

TestClock::TestClock(double speed) : TestClock(Now(), speed) {}

TestClock::TestClock(DateTime start, double speed) {
    TheOverride() = Override{start, speed, {}};
    TheOverride()->elapsed.start();
}

TestClock::~TestClock() { TheOverride().reset(); }
