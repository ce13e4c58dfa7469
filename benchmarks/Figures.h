#pragma once

#include <QElapsedTimer>

#include <algorithm>
#include <cstdio>
#include <functional>
#include <string>
#include <vector>

/// Measured figures, each with a baseline from the same run. Machines are noisy, so only the ratio
/// counts.
class Figures {
public:
    /// Runs both alternately, several times, and prints a line with the medians. A slow figure can
    /// be measured in one round; if it breaks its limit, two more decide.
    void Compare(const std::string& name, double limit, const std::function<void()>& ours,
                 const std::function<void()>& baseline, int rounds = 5) {
        std::vector<double> oursTimes, baselineTimes;
        for (int round = 0; round < rounds; ++round) {
            baselineTimes.push_back(Milliseconds(baseline));
            oursTimes.push_back(Milliseconds(ours));
            if (rounds == 1 && oursTimes[0] > limit * baselineTimes[0])
                rounds = 3;
        }
        Report(name, "ms", Median(oursTimes), Median(baselineTimes), limit);
    }
    void Report(const std::string& name, const char* unit, double ours, double baseline,
                double limit) {
        const double ratio = ours / baseline;
        std::printf("%-50s %10.1f %s against %10.1f   ratio %5.2f   at most %.1f%s\n", name.c_str(),
                    ours, unit, baseline, ratio, limit, ratio > limit ? "   TOO MUCH" : "");
        std::fflush(stdout);
        m_failed = m_failed || ratio > limit;
    }
    int ExitStatus() const { return m_failed ? 1 : 0; }

private:
    static double Milliseconds(const std::function<void()>& work) {
        QElapsedTimer timer;
        timer.start();
        work();
        return static_cast<double>(timer.nsecsElapsed()) / 1e6;
    }
    static double Median(std::vector<double> values) {
        std::sort(values.begin(), values.end());
        return values[values.size() / 2];
    }

    bool m_failed = false;
};
