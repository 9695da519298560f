#pragma once

#include <benchmark/benchmark.h>

#include <algorithm>
#include <ctime>
#include <functional>
#include <string>
#include <vector>

/// CPU time that the calling thread has used, in seconds. Other programs on the machine do not disturb it.
inline double threadSeconds()
{
    timespec now{};
    clock_gettime(CLOCK_THREAD_CPUTIME_ID, &now);
    return double(now.tv_sec) + double(now.tv_nsec) * 1e-9;
}

/// The CPU time of `work()`. What it returns is freed outside of the measurement.
template <typename Work>
double secondsOf(Work &&work)
{
    const double start = threadSeconds();
    const auto result = std::invoke(work);
    const double end = threadSeconds();
    benchmark::DoNotOptimize(&result);
    return end - start;
}

inline double median(std::vector<double> values)
{
    const auto middle = values.begin() + std::ptrdiff_t(values.size() / 2);
    std::nth_element(values.begin(), middle, values.end());
    return *middle;
}

/// Runs both sides in turn, once in each iteration, and reports the ratio of their CPU times (medians) beside
/// the highest ratio that is good enough; a goal of 0 stands for none. Each side returns what it made. The
/// benchmark needs UseManualTime(); its time is that of \a measured.
template <typename Measured, typename Reference>
void runInTurn(benchmark::State &state, double goal, Measured measured, Reference reference)
{
    std::vector<double> ours;
    std::vector<double> theirs;
    for ([[maybe_unused]] auto iteration : state) {
        theirs.push_back(secondsOf(reference));
        ours.push_back(secondsOf(measured));
        state.SetIterationTime(ours.back());
    }
    const double ratio = median(ours) / median(theirs);
    state.counters["ratio"] = ratio;
    if (goal > 0) {
        state.counters["goal"] = goal;
        state.SetLabel(ratio <= goal ? "goal reached" : "GOAL MISSED");
    }
}
