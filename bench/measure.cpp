#include "bench/measure.h"

#include <algorithm>
#include <chrono>
#include <cstdio>

namespace orrelix {

std::string Number(long nNumber) {
    char text[24];
    snprintf(text, sizeof text, "%07ld", nNumber);
    return text;
}

double Seconds(const std::function<void()>& work) {
    const auto start = std::chrono::steady_clock::now();
    work();
    return std::chrono::duration<double>(std::chrono::steady_clock::now() - start).count();
}

void MeasureBeside(benchmark::State& state, size_t nBytes, const std::function<void()>& yardstick,
                   const std::function<void()>& work) {
    double yardstickSeconds = 1e9, workSeconds = 1e9;
    for ([[maybe_unused]] auto _ : state) {
        state.PauseTiming();
        yardstickSeconds = std::min(yardstickSeconds, Seconds(yardstick));
        state.ResumeTiming();
        workSeconds = std::min(workSeconds, Seconds(work));
    }
    state.counters["ratio"] = workSeconds / yardstickSeconds;
    state.counters["fastest_ms"] = 1000 * workSeconds;
    state.SetBytesProcessed(static_cast<int64_t>(nBytes) * state.iterations());
}

} // namespace orrelix
