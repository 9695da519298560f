#pragma once

#include <algorithm>
#include <ctime>
#include <limits>

/// How many times as long \a work(large) takes as \a work(small), in CPU time of this thread, so that other
/// programs do not count. Each is tried a few times and the quickest counts.
template <typename Work>
[[nodiscard]] double growth(Work work, int small, int large)
{
    const auto seconds = [&work](int size) {
        timespec start{};
        timespec end{};
        clock_gettime(CLOCK_THREAD_CPUTIME_ID, &start);
        work(size);
        clock_gettime(CLOCK_THREAD_CPUTIME_ID, &end);
        return double(end.tv_sec - start.tv_sec) + double(end.tv_nsec - start.tv_nsec) * 1e-9;
    };
    double quickestSmall = std::numeric_limits<double>::infinity();
    double quickestLarge = quickestSmall;
    for (int i = 0; i < 3; ++i) {
        quickestSmall = std::min(quickestSmall, seconds(small));
        quickestLarge = std::min(quickestLarge, seconds(large));
    }
    return quickestLarge / quickestSmall;
}
