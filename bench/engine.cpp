// SPDX-License-Identifier: MIT
// The lunar engine, the rise and set calculator and the pictures.
#include "app/engine/CMoon.h"
#include "app/engine/CMoonHelper.h"
#include "app/engine/CRiseSet.h"
#include "app/ui/LumivaneWindowController.h"

#include <QApplication>

#include <benchmark/benchmark.h>

namespace {

/// Moments all over the table, so that no query meets the one before it in the cache.
class Moments {
public:
    std::uint32_t next() {
        state_ = state_ * 1664525u + 1013904223u;
        const std::uint32_t first = gMoon.FindLunationAtIndex(0)->newMoon;
        const std::uint32_t last = gMoon.FindLunationAtIndex(kLunationCount - 2)->newMoon;
        return first + static_cast<std::uint32_t>((static_cast<std::uint64_t>(last - first) * state_) >> 32);
    }

private:
    std::uint32_t state_ = 1;
};

template <typename Query>
void query(benchmark::State& state, Query ask) {
    Moments moments;
    for (auto _ : state)
        benchmark::DoNotOptimize(ask(moments.next()));
}

void FindLunation(benchmark::State& state) {
    query(state, [](std::uint32_t t) { return gMoon.FindLunationForGMTSeconds(t); });
}
BENCHMARK(FindLunation);

void GetPhase(benchmark::State& state) {
    query(state, [](std::uint32_t t) { return gMoon.GetPhase(t); });
}
BENCHMARK(GetPhase);

void GetAlmanacIndex(benchmark::State& state) {
    query(state, [](std::uint32_t t) { return gMoon.GetAlmanacIndex(t); });
}
BENCHMARK(GetAlmanacIndex);

void Calculate(benchmark::State& state) {
    tRiseSetCalcParamBlock block{13.4, 52.5, 1.0, 1, 6, 2026};
    CRiseSet calculator;
    for (auto _ : state) {
        block.day = block.day % 28 + 1; // another request each time
        calculator.Calculate(block);
        tRiseSetPair pair{};
        calculator.GetSunInfo(pair);
        benchmark::DoNotOptimize(pair);
    }
}
BENCHMARK(Calculate);

void WholeTable(benchmark::State& state) {
    for (auto _ : state) {
        for (int lunation = 0; lunation < kLunationCount; ++lunation) {
            for (int phase = 0; phase < 4; ++phase)
                benchmark::DoNotOptimize(CMoon::TimeOfPhase(lunation, phase));
        }
    }
}
BENCHMARK(WholeTable)->Unit(benchmark::kMillisecond);

void LoadTable(benchmark::State& state) {
    for (auto _ : state) {
        CMoon moon;
        moon.Init();
        benchmark::DoNotOptimize(moon);
    }
}
BENCHMARK(LoadTable)->Unit(benchmark::kMillisecond);

void MoonImage(benchmark::State& state) {
    Moments moments;
    for (auto _ : state)
        benchmark::DoNotOptimize(LumivaneWindowController::moonImageFor(moments.next()));
}
BENCHMARK(MoonImage)->Unit(benchmark::kMillisecond);

} // namespace

int main(int argc, char** argv) {
    qputenv("QT_QPA_PLATFORM", "offscreen");
    const QApplication application(argc, argv);
    gMoon.Init();
    benchmark::Initialize(&argc, argv);
    benchmark::RunSpecifiedBenchmarks();
    return 0;
}
