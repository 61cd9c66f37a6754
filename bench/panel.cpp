// SPDX-License-Identifier: MIT
// The panel: one refresh of everything that it shows, and making one.
#include "app/shell/ApplicationDelegate.h"
#include "app/ui/LumivaneStatusItem.h"
#include "app/ui/LumivaneWindow.h"
#include "app/ui/LumivaneWindowController.h"
#include "app/ui/PanelCommands.h"
#include "platform/layouts/Slider.h"

#include <QApplication>
#include <QTemporaryDir>

#include <benchmark/benchmark.h>

namespace {

ApplicationDelegate& shell() {
    static ApplicationDelegate delegate;
    return delegate;
}

/// The slider from end to end: lines, picture and icon each time, and their painting.
void Refresh(benchmark::State& state) {
    LumivaneStatusItem item(shell());
    PanelCommands commands(shell());
    item.awakeFromNib();
    const auto controller =
        LumivaneWindowController::lumivaneWindowController(commands, LumivaneWindow::kBorderlessMask);
    controller->setStatusItem(&item);
    controller->window()->show();
    auto* slider = controller->window()->findChild<Slider*>(QStringLiteral("lunationSlider_"));
    int step = 0;
    for (auto _ : state) {
        step = (step + 97) % (slider->maximum() + 1);
        slider->setValue(step); // as the knob does under the pointer
        controller->window()->repaint();
    }
}
BENCHMARK(Refresh)->Unit(benchmark::kMillisecond);

void MakePanel(benchmark::State& state) {
    PanelCommands commands(shell());
    for (auto _ : state)
        benchmark::DoNotOptimize(
            LumivaneWindowController::lumivaneWindowController(commands, LumivaneWindow::kBorderlessMask));
}
BENCHMARK(MakePanel)->Unit(benchmark::kMillisecond);

} // namespace

int main(int argc, char** argv) {
    const QTemporaryDir home; // nobody's preferences
    qputenv("LUMIVANE_CONFIG_HOME", home.path().toLocal8Bit());
    const QApplication application(argc, argv);
    QApplication::setQuitOnLastWindowClosed(false);
    benchmark::Initialize(&argc, argv);
    benchmark::RunSpecifiedBenchmarks();
    return 0;
}
