#pragma once

#include <QByteArray>

#include <functional>
#include <sys/types.h>

/// A second process that runs `body` and ends. The parent reads what the body writes to `out`. The
/// child shares only files with the parent; open no store before forking.
class ForkedChild {
public:
    explicit ForkedChild(const std::function<void(int out)>& body);
    ~ForkedChild();
    ForkedChild(const ForkedChild&) = delete;
    ForkedChild& operator=(const ForkedChild&) = delete;

    /// Waits for this many bytes. Gives fewer only if the child has ended.
    QByteArray Read(qsizetype bytes);
    /// Ends the child at once, without clean-up, like a power cut. What it has written can still be
    /// read.
    void Kill();

private:
    pid_t m_pid = -1;
    int m_in = -1;
};
