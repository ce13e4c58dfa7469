#pragma once

#include "DateTime.h"

#include <QObject>
#include <QTimer>

#include <cstdint>

/// The one place that knows the time. Everything that pauses, waits or ticks goes through here, so
/// that a test can set the time and let it run faster; nothing but a test does.

/// The present local date and time.
DateTime Now();
/// Today at midnight.
DateTime Today();
/// Seconds since midnight; falls back to 0 at midnight, as a wall clock does.
double SecondsOfDay();
/// Milliseconds since some moment, by a clock that no setting of the time moves. For measuring how
/// long something takes.
std::int64_t MillisecondsRunning();
/// Blocks the thread; no event is handled meanwhile.
void Sleep(int milliseconds);
/// Handles all events that are waiting.
void DoEvents();
/// The same, but keys and clicks go on waiting.
void DoEventsWithoutInput();

/// A repeating timer on the interface thread, stopped at first. Starting it again begins a new
/// interval. A tick that is still being handled is not entered again from its own DoEvents.
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

/// While it lives, the time starts at `start` (if given) and runs `speed` times as fast: pauses,
/// timers and waits shrink together. For tests.
class TestClock {
public:
    explicit TestClock(double speed);
    TestClock(DateTime start, double speed);
    ~TestClock();
    TestClock(const TestClock&) = delete;
    TestClock& operator=(const TestClock&) = delete;
};
