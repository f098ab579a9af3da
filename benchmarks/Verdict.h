/// A benchmark's figure against what is asked of it.
#pragma once

#include <benchmark/benchmark.h>

#include <cstdio>
#include <string>

namespace bench {

/// Reports the figure beside the others and prints a line with the verdict: whether it keeps the limit, which
/// is the largest value that is allowed, or the smallest where `isFloor`.
inline void judge(benchmark::State& state, const std::string& what, double figure, double limit,
                  bool isFloor = false) {
    state.counters[what] = figure;
    const bool isKept = isFloor ? figure >= limit : figure <= limit;
    std::printf("%-8s %s: %.3g, %s %.3g\n", isKept ? "kept" : "MISSED", what.c_str(), figure,
                isFloor ? "at least" : "at most", limit);
}

} // namespace bench
