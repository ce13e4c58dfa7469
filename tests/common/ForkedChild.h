#pragma once

#include <QByteArray>

#include <functional>
#include <sys/types.h>

/// A second process that runs `body` and ends. What the body writes to the file it is handed, the
/// parent reads. The child shares nothing with the parent but files; open no store before forking.
class ForkedChild {
public:
    explicit ForkedChild(const std::function<void(int out)>& body);
    ~ForkedChild();
    ForkedChild(const ForkedChild&) = delete;
    ForkedChild& operator=(const ForkedChild&) = delete;

    /// Waits for so many bytes; fewer come only if the child is gone.
    QByteArray Read(qsizetype bytes);
    /// Ends the child as a power cut ends a program: at once, with no clean-up. All that it still
    /// wrote is left to be read.
    void Kill();

private:
    pid_t m_pid = -1;
    int m_in = -1;
};
