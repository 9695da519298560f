#pragma once

#include <benchmark/benchmark.h>

#include <algorithm>
#include <cstdlib>
#include <ctime>
#include <functional>
#include <type_traits>
#include <utility>
#include <vector>

/// CPU time that the calling thread has used, in seconds. Other programs on the machine do not disturb it.
inline double threadSeconds()
{
    timespec now{};
    clock_gettime(CLOCK_THREAD_CPUTIME_ID, &now);
    return double(now.tv_sec) + double(now.tv_nsec) * 1e-9;
}

/// Lets the allocator put in order what has been freed before, which would otherwise be paid by the next work
/// that is measured.
inline void settleMemory()
{
    constexpr std::size_t large = 64 * 1024; // More than is kept apart for quick reuse, less than is mapped.
    void *memory = std::malloc(large);
    benchmark::DoNotOptimize(memory);
    std::free(memory);
}

/// What some work made, and the CPU time it took.
template <typename Result>
struct Timed {
    Result result;
    double seconds;
};

template <typename Work>
auto timed(Work &&work) -> Timed<std::invoke_result_t<Work>>
{
    settleMemory();
    const double start = threadSeconds();
    auto result = std::invoke(work);
    const double end = threadSeconds();
    benchmark::DoNotOptimize(&result);
    return {std::move(result), end - start};
}

/// The ratio of two sides that run in turn, in the medians of their CPU times. Benchmarks that use it need
/// UseManualTime(); their time is that of the measured side.
class Ratio
{
public:
    explicit Ratio(benchmark::State &state) : m_state(state) { }

    /// Adds one iteration.
    void add(double measured, double reference)
    {
        m_measured.push_back(measured);
        m_reference.push_back(reference);
        m_state.SetIterationTime(measured);
    }

    /// Prints the ratio beside \a goal, the highest that is good enough; 0 stands for none.
    void report(double goal = 0)
    {
        const double ratio = median(m_measured) / median(m_reference);
        m_state.counters["ratio"] = ratio;
        if (goal <= 0)
            return;
        m_state.counters["goal"] = goal;
        m_state.SetLabel(ratio <= goal ? "goal reached" : "GOAL MISSED");
    }

private:
    static double median(std::vector<double> values)
    {
        const auto middle = values.begin() + std::ptrdiff_t(values.size() / 2);
        std::nth_element(values.begin(), middle, values.end());
        return *middle;
    }

    benchmark::State &m_state;
    std::vector<double> m_measured;
    std::vector<double> m_reference;
};

/// Compares two sides that do not need each other. Each returns what it made, which is freed outside of the
/// measurement.
template <typename Measured, typename Reference>
void runInTurn(benchmark::State &state, double goal, Measured measured, Reference reference)
{
    Ratio ratio(state);
    for ([[maybe_unused]] auto iteration : state) {
        const double theirs = timed(reference).seconds;
        ratio.add(timed(measured).seconds, theirs);
    }
    ratio.report(goal);
}
