#pragma once

// How every benchmark times what it measures and prints the figure. A measurement gives both the
// processor time of the whole process and the wall-clock time, in milliseconds: on a busy machine
// the processor time is the figure to compare with a goal, because the wall clock also counts other
// programs. Repeated measurements are summed up by their median and their worst run (both chosen
// by processor time).
//
//     const BenchTiming::Samples repaints = BenchTiming::repeat(50, [&] { slider.repaint(); });
//     out << BenchTiming::line("slider repaint", repaints, "goal 4 ms");
//     // slider repaint: median 1.20 ms CPU, 1.31 ms wall; worst 2.05 ms CPU, 2.40 ms wall (50 runs; goal 4 ms)

#include <QElapsedTimer>
#include <QString>

#include <algorithm>
#include <ctime>
#include <vector>

namespace BenchTiming {
struct Timing
{
    double cpuMs = 0.0;
    double wallMs = 0.0;

    // The share of one of `count` equal pieces of work that were timed together.
    Timing per(int count) const { return {cpuMs / count, wallMs / count}; }
};

// Measures from its construction or its last restart.
class Stopwatch
{
public:
    Stopwatch() { restart(); }

    void restart()
    {
        m_cpu = std::clock();
        m_wall.start();
    }

    Timing elapsed() const
    {
        return {double(std::clock() - m_cpu) * 1000.0 / CLOCKS_PER_SEC, m_wall.nsecsElapsed() / 1.0e6};
    }

private:
    std::clock_t m_cpu = 0;
    QElapsedTimer m_wall;
};

// The timings of repeated runs of one piece of work.
class Samples
{
public:
    void add(const Timing& timing) { m_timings.push_back(timing); }
    int count() const { return int(m_timings.size()); }
    Timing median() const { return sorted().at(m_timings.size() / 2); }
    Timing worst() const { return sorted().back(); }

private:
    std::vector<Timing> sorted() const
    {
        std::vector<Timing> timings = m_timings;
        std::sort(timings.begin(), timings.end(),
                  [](const Timing& left, const Timing& right) { return left.cpuMs < right.cpuMs; });
        return timings;
    }

    std::vector<Timing> m_timings;
};

template<typename Work>
Timing once(Work&& work)
{
    const Stopwatch stopwatch;
    work();
    return stopwatch.elapsed();
}

template<typename Work>
Samples repeat(int runs, Work&& work)
{
    Samples samples;
    for (int run = 0; run < runs; ++run)
        samples.add(once(work));
    return samples;
}

inline QString milliseconds(double value)
{
    // Figures below a tenth of a millisecond keep their microseconds.
    return QString::number(value, 'f', value < 0.1 ? 4 : 2) + QStringLiteral(" ms");
}

inline QString figures(const Timing& timing)
{
    return QStringLiteral("%1 CPU, %2 wall").arg(milliseconds(timing.cpuMs), milliseconds(timing.wallMs));
}

// "what: 1.20 ms CPU, 1.31 ms wall (goal)" and a line break; the goal may be empty.
inline QString line(const QString& what, const Timing& timing, const QString& goal = QString())
{
    return QStringLiteral("%1: %2%3\n").arg(what, figures(timing), goal.isEmpty() ? QString() : " (" + goal + ')');
}

// "what: median ...; worst ... (N runs; goal)" and a line break; one run prints as a single timing.
inline QString line(const QString& what, const Samples& samples, const QString& goal = QString())
{
    if (samples.count() == 1)
        return line(what, samples.median(), goal);
    return QStringLiteral("%1: median %2; worst %3 (%4 runs%5)\n")
        .arg(what, figures(samples.median()), figures(samples.worst()))
        .arg(samples.count())
        .arg(goal.isEmpty() ? QString() : "; " + goal);
}
} // namespace BenchTiming
