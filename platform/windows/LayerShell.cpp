// SPDX-License-Identifier: MIT
#include "platform/windows/LayerShell.h"

#ifdef LUMIVANE_LAYER_SHELL

#include "platform/windows/SwayPlacement.h"

#include <QGuiApplication>
#include <QRect>
#include <QScreen>
#include <QWidget>
#include <QWindow>

#include <LayerShellQt/Window>
#include <wayland-client.h>

#include <algorithm>
#include <memory>
#include <string_view>

namespace {

using Layer = LayerShellQt::Window;

constexpr int kThickestBar = 100;
constexpr char kIsLayer[] = "isLayerSurface";

Layer* layerOf(QWidget* window) {
    window->winId(); // has the handle made
    window->windowHandle()->setProperty(kIsLayer, true);
    Layer* const layer = Layer::get(window->windowHandle());
    layer->setLayer(Layer::LayerTop);
    layer->setKeyboardInteractivity(Layer::KeyboardInteractivityOnDemand);
    layer->setCloseOnDismissed(false);
    return layer;
}

bool askCompositor() {
    // A connection that was handed down is for one use, and that is Qt's.
    if (qEnvironmentVariableIsSet("WAYLAND_SOCKET"))
        return false;
    const std::unique_ptr<wl_display, decltype(&wl_display_disconnect)> display(wl_display_connect(nullptr),
                                                                                &wl_display_disconnect);
    if (!display)
        return false;
    constexpr wl_registry_listener kListener{
        .global =
            [](void* isThere, wl_registry*, std::uint32_t, const char* interface, std::uint32_t) {
                if (interface == std::string_view("zwlr_layer_shell_v1"))
                    *static_cast<bool*>(isThere) = true;
            },
        .global_remove = [](void*, wl_registry*, std::uint32_t) {}};
    bool isThere = false;
    const std::unique_ptr<wl_registry, decltype(&wl_registry_destroy)> registry(
        wl_display_get_registry(display.get()), &wl_registry_destroy);
    wl_registry_add_listener(registry.get(), &kListener, &isThere);
    wl_display_roundtrip(display.get());
    return isThere;
}

} // namespace

bool LayerShell::isOffered() {
    static const bool isThere = !SwayPlacement::isThere() && askCompositor();
    return isThere;
}

bool LayerShell::isUsed() {
    return QGuiApplication::platformName().startsWith(u"wayland") && isOffered();
}

void LayerShell::place(QWidget* window, const QRect& frame, const QRect& from, QScreen* screen) {
    Layer* const layer = layerOf(window);
    window->windowHandle()->setScreen(screen);
    const QRect whole = screen->geometry();
    const QMargins free(frame.left() - whole.left(), frame.top() - whole.top(), whole.right() - frame.right(),
                        whole.bottom() - frame.bottom());
    const bool isAtBottom = from.center().y() > whole.center().y();
    const bool isAtRight = from.center().x() > whole.center().x();
    // At a bar, which takes its own part of the screen away.
    const auto fromBar = [](int distance) { return distance < kThickestBar ? 0 : distance; };

    layer->setAnchors({isAtBottom ? Layer::AnchorBottom : Layer::AnchorTop,
                       isAtRight ? Layer::AnchorRight : Layer::AnchorLeft});
    layer->setMargins({isAtRight ? 0 : free.left(), isAtBottom ? 0 : fromBar(free.top()),
                       isAtRight ? free.right() : 0, isAtBottom ? fromBar(free.bottom()) : 0});
}

void LayerShell::takeInput(QWidget* window) {
    window->setAttribute(Qt::WA_TranslucentBackground);
    window->setFixedSize(QGuiApplication::primaryScreen()->size());
    Layer* const layer = layerOf(window);
    layer->setScreenConfiguration(Layer::ScreenFromCompositor);
    layer->setExclusiveZone(-1);
    layer->setKeyboardInteractivity(Layer::KeyboardInteractivityExclusive);
}

void LayerShell::placeOver(QWidget* sheet, const QWidget* window) {
    if (!window->windowHandle() || !window->windowHandle()->property(kIsLayer).toBool())
        return;
    const Layer* const below = Layer::get(window->windowHandle());
    Layer* const layer = layerOf(sheet);
    sheet->windowHandle()->setScreen(window->screen());
    layer->setAnchors(below->anchors());
    const int aside = (window->width() - sheet->width()) / 2;
    const auto inside = [aside](int margin) { return std::max(0, margin + aside); };
    const QMargins margins = below->margins();
    const bool isAtRight = below->anchors().testFlag(Layer::AnchorRight);
    layer->setMargins({isAtRight ? 0 : inside(margins.left()), margins.top(),
                       isAtRight ? inside(margins.right()) : 0, margins.bottom()});
}

#endif
