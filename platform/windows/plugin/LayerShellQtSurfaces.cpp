// SPDX-License-Identifier: MIT
#include "platform/windows/LayerSurfaces.h"

#include <QObject>
#include <QWindow>

#include <LayerShellQt/Window>
#include <wayland-client.h>

#include <memory>
#include <string_view>

namespace {

using Layer = LayerShellQt::Window;

/// By which a compositor's rules can name our surfaces.
const QString kScope = QStringLiteral("lumivane");

Layer::KeyboardInteractivity interactivityOf(LayerSurfaces::Keyboard keyboard) {
    switch (keyboard) {
    case LayerSurfaces::Keyboard::None:
        return Layer::KeyboardInteractivityNone;
    case LayerSurfaces::Keyboard::OnDemand:
        return Layer::KeyboardInteractivityOnDemand;
    case LayerSurfaces::Keyboard::Exclusive:
        return Layer::KeyboardInteractivityExclusive;
    }
    Q_UNREACHABLE();
}

} // namespace

class LayerShellQtSurfaces : public QObject, public LayerSurfaces {
    Q_OBJECT
    Q_PLUGIN_METADATA(IID LUMIVANE_LAYER_SURFACES)
    Q_INTERFACES(LayerSurfaces)

public:
    bool areOffered() override {
        const std::unique_ptr<wl_display, decltype(&wl_display_disconnect)> display(
            wl_display_connect(nullptr), &wl_display_disconnect);
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

    void place(QWindow* window, const Placement& placement) override {
        Layer::Anchors anchors;
        anchors.setFlag(Layer::AnchorTop, placement.edges.testFlag(Qt::TopEdge));
        anchors.setFlag(Layer::AnchorBottom, placement.edges.testFlag(Qt::BottomEdge));
        anchors.setFlag(Layer::AnchorLeft, placement.edges.testFlag(Qt::LeftEdge));
        anchors.setFlag(Layer::AnchorRight, placement.edges.testFlag(Qt::RightEdge));
        Layer* const layer = Layer::get(window);
        layer->setScope(kScope);
        layer->setLayer(Layer::LayerTop);
        layer->setCloseOnDismissed(false);
        layer->setScreenConfiguration(placement.onActiveScreen ? Layer::ScreenFromCompositor
                                                               : Layer::ScreenFromQWindow);
        layer->setKeyboardInteractivity(interactivityOf(placement.keyboard));
        layer->setExclusiveZone(placement.overBars ? -1 : 0);
        layer->setAnchors(anchors);
        layer->setMargins(placement.margins);
    }
};

#include "LayerShellQtSurfaces.moc"
