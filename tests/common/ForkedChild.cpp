#include "ForkedChild.h"

#include <csignal>
#include <sys/wait.h>
#include <unistd.h>

ForkedChild::ForkedChild(const std::function<void(int out)>& body) {
    int ends[2];
    if (::pipe(ends) != 0)
        qFatal("no pipe");
    m_pid = ::fork();
    if (m_pid < 0)
        qFatal("no second process");
    if (m_pid == 0) {
        ::close(ends[0]);
        body(ends[1]);
        ::_exit(0);
    }
    ::close(ends[1]);
    m_in = ends[0];
}

ForkedChild::~ForkedChild() {
    Kill();
    ::close(m_in);
}

QByteArray ForkedChild::Read(qsizetype bytes) {
    QByteArray all;
    char byte;
    while (all.size() < bytes && ::read(m_in, &byte, 1) == 1)
        all += byte;
    return all;
}

void ForkedChild::Kill() {
    if (m_pid < 0)
        return;
    ::kill(m_pid, SIGKILL);
    ::waitpid(m_pid, nullptr, 0);
    m_pid = -1;
}
