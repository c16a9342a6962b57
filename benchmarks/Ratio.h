#pragma once

#include <QElapsedTimer>
#include <algorithm>
#include <cstdio>
#include <functional>
#include <vector>

/// Times two pieces of work against each other on a noisy machine: they run in turns, so that a busy
/// second hits both, and the medians are compared.
namespace Ratio {

inline double Median(std::vector<double> values)
{
    std::sort(values.begin(), values.end());
    return values.at(values.size() / 2);
}

inline double Milliseconds(const std::function<void()>& work)
{
    QElapsedTimer timer;
    timer.start();
    work();
    return static_cast<double>(timer.nsecsElapsed()) / 1e6;
}

/// Prints "name ratio (ours unit, theirs unit)".
inline void PrintRatio(const char* name, double ours, double theirs, const char* unit)
{
    std::printf("%s %.3f (%.3f %s, %.3f %s)\n", name, ours / theirs, ours, unit, theirs, unit);
    std::fflush(stdout);
}

/// The same of the medians of two lists of times.
inline void PrintMedians(const char* name, const std::vector<double>& ours, const std::vector<double>& theirs)
{
    PrintRatio(name, Median(ours), Median(theirs), "ms");
}

/// Runs @p ours and @p theirs @p rounds times each and prints "name ratio (ours ms, theirs ms)".
inline void
Print(const char* name, int rounds, const std::function<void()>& ours, const std::function<void()>& theirs)
{
    std::vector<double> oursTimes;
    std::vector<double> theirsTimes;
    for (int i = 0; i < rounds; ++i) {
        oursTimes.push_back(Milliseconds(ours));
        theirsTimes.push_back(Milliseconds(theirs));
    }
    PrintMedians(name, oursTimes, theirsTimes);
}

} // namespace Ratio
