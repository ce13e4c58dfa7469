#pragma once

#include <functional>
#include <utility>

/// Called now and then during long work: `done` of `all` steps are finished. If `all` is 0,
/// nobody knows how far the work is. Return false to cancel.
using WorkProgress = std::function<bool(int done, int all)>;

/// Counts the rows of a report while they are read, and shows now and then how many are done.
class RowProgress {
public:
    /// `all`: the number of rows that will be read.
    RowProgress(WorkProgress show, int all) : m_show(std::move(show)), m_all(all) {}

    /// Counts one more row. False once the operator has cancelled the work.
    bool Step() {
        if (++m_done % RowsBetween == 0 && !m_cancelled)
            m_cancelled = !m_show(m_done, m_all);
        return !m_cancelled;
    }
    bool Cancelled() const { return m_cancelled; }

private:
    static constexpr int RowsBetween = 512;

    WorkProgress m_show;
    int m_all;
    int m_done = 0;
    bool m_cancelled = false;
};
