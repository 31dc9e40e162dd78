// Each measure runs next to its yardstick, in the same rounds.
#pragma once

#include <benchmark/benchmark.h>
#include <functional>
#include <string>

namespace orrelix {

// Seven digits.
std::string Number(long nNumber);

// How long the work takes.
double Seconds(const std::function<void()>& work);

// Runs the work as the benchmark and the yardstick before each round. The counter "ratio" compares the
// fastest rounds of the two, which other work on the machine disturbs least: how many times the yardstick's
// time the work takes. nBytes is what the work handles.
void MeasureBeside(benchmark::State& state, size_t nBytes, const std::function<void()>& yardstick,
                   const std::function<void()>& work);

} // namespace orrelix
