#pragma once

#include "DateTime.h"

#include <QObject>
#include <QTimer>

#include <cstdint>

/// The only source of the time. Everything that pauses, waits or ticks goes through here, so that a
/// test can set the time and make it run faster. Only tests do.

/// The current local date and time.
DateTime Now();
/// Today at midnight.
DateTime Today();
/// Seconds since midnight. Starts again from 0 at midnight.
double SecondsOfDay();
/// Milliseconds since some moment, by a clock that is not changed when the time is set. For
/// measuring how long something takes.
std::int64_t MillisecondsRunning();
/// Blocks the thread. No events are handled until it returns.
void Sleep(int milliseconds);
/// Handles all waiting events.
void DoEvents();
/// Handles all waiting events except keys and clicks.
void DoEventsWithoutInput();

/// A repeating timer on the interface thread, stopped at first. Starting it again begins a new
/// interval. If the handler of a tick calls DoEvents, the timer does not tick during that call.
class Timer : public QObject {
    Q_OBJECT
public:
    explicit Timer(int intervalMilliseconds, QObject* parent = nullptr);

    bool Enabled() const { return m_timer.isActive(); }
    void SetEnabled(bool enabled);
    void SetInterval(int milliseconds);

signals:
    void Tick();

private:
    void Fire();

    QTimer m_timer;
    int m_interval;
    bool m_firing = false;
};

/// For tests. While it exists, the time begins at `start` (if given) and runs `speed` times as
/// fast; pauses, timers and waits become shorter in proportion.
class TestClock {
public:
    explicit TestClock(double speed);
    TestClock(DateTime start, double speed);
    ~TestClock();
    TestClock(const TestClock&) = delete;
    TestClock& operator=(const TestClock&) = delete;
};
