// SPDX-License-Identifier: MIT
// The panel: what a drag of the lunation slider costs at each place, and making one.
#include "app/shell/ApplicationDelegate.h"
#include "app/ui/LumivaneStatusItem.h"
#include "app/ui/LumivaneWindow.h"
#include "app/ui/LumivaneWindowController.h"
#include "platform/appkit/NSSlider.h"

#include <QApplication>
#include <QTemporaryDir>

#include <benchmark/benchmark.h>

#include <algorithm>
#include <chrono>

namespace {

LumivaneWindow* shownPanel() {
    for (QWidget* widget : QApplication::topLevelWidgets()) {
        if (auto* window = qobject_cast<LumivaneWindow*>(widget); window && window->isVisible())
            return window;
    }
    return nullptr;
}

/// Moves the slider from end to end, over and over: picture, all lines and the icon's pictures each time, and
/// with `painted` what the screen needs too.
void drag(benchmark::State& state, bool painted) {
    LumivaneStatusItem item;
    item.awakeFromNib();
    item.showPanel();
    QApplication::processEvents();
    auto* slider = shownPanel()->findChild<NSSlider*>(QStringLiteral("lunationSlider_"));
    constexpr int kPlaces = 331; // the slider's width in pixels
    int place = 0;
    double worst = 0;
    for (auto _ : state) {
        const auto start = std::chrono::steady_clock::now();
        place = (place + 1) % kPlaces;
        slider->setValue(place * slider->maximum() / (kPlaces - 1));
        if (painted)
            QApplication::processEvents();
        const std::chrono::duration<double, std::milli> taken = std::chrono::steady_clock::now() - start;
        worst = std::max(worst, taken.count());
    }
    state.counters["worst_ms"] = worst;
}

void Refresh(benchmark::State& state) {
    drag(state, false);
}
BENCHMARK(Refresh)->Unit(benchmark::kMillisecond);

void RefreshAndPaint(benchmark::State& state) {
    drag(state, true);
}
BENCHMARK(RefreshAndPaint)->Unit(benchmark::kMillisecond);

void MakePanel(benchmark::State& state) {
    for (auto _ : state)
        benchmark::DoNotOptimize(LumivaneWindowController::lumivaneWindowController());
}
BENCHMARK(MakePanel)->Unit(benchmark::kMillisecond);

} // namespace

int main(int argc, char** argv) {
    // Nothing of the person who measures is read, written or shown in the tray.
    const QTemporaryDir home;
    qputenv("XDG_CONFIG_HOME", home.path().toLocal8Bit());
    qputenv("DBUS_SESSION_BUS_ADDRESS", "unix:path=/nonexistent");
    qputenv("QT_QPA_PLATFORM", "offscreen");
    // A screen without fading says so at each step.
    qputenv("QT_LOGGING_RULES", "qt.qpa.*=false;default.warning=false");
    const QApplication application(argc, argv);
    const ApplicationDelegate delegate;
    benchmark::Initialize(&argc, argv);
    benchmark::RunSpecifiedBenchmarks();
    return 0;
}
