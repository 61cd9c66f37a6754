// SPDX-License-Identifier: MIT
// A day's rise and set of Sun, Moon and nautical twilight at one place, by libnova.
#include <libnova/julian_day.h>
#include <libnova/lunar.h>
#include <libnova/rise_set.h>
#include <libnova/solar.h>

#include <benchmark/benchmark.h>

static void LibnovaDay(benchmark::State& state) {
    constexpr double kNauticalTwilight = -12.0;
    ln_lnlat_posn place{13.4, 52.5};
    double day = 2461193.0; // 2026-06-01
    for (auto _ : state) {
        day = day < 2461220.0 ? day + 1.0 : 2461193.0;
        ln_rst_time times{};
        benchmark::DoNotOptimize(ln_get_lunar_rst(day, &place, &times));
        benchmark::DoNotOptimize(ln_get_solar_rst(day, &place, &times));
        benchmark::DoNotOptimize(ln_get_solar_rst_horizon(day, &place, kNauticalTwilight, &times));
        benchmark::DoNotOptimize(times);
    }
}
BENCHMARK(LibnovaDay);

BENCHMARK_MAIN();
