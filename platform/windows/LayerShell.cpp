// SPDX-License-Identifier: MIT
#include "platform/windows/LayerShell.h"

#include "platform/log/Log.h"
#include "platform/windows/LayerSurfaces.h"
#include "platform/windows/Outline.h"

#include <QEnterEvent>
#include <QFile>
#include <QFileInfo>
#include <QGuiApplication>
#include <QHash>
#include <QPluginLoader>
#include <QPointer>
#include <QRasterWindow>
#include <QScreen>
#include <QTimer>
#include <QWidget>
#include <QWindow>

#include <algorithm>
#include <chrono>
#include <memory>
#include <utility>
#include <vector>

namespace {

constexpr char kPlacement[] = "layerPlacement"; // what makeLayer() was given
constexpr Qt::Edges kAllEdges = Qt::TopEdge | Qt::BottomEdge | Qt::LeftEdge | Qt::RightEdge;
constexpr QSize kNotYet(1, 1); // before the compositor gives a size
/// A compositor tells within a frame or two where the pointer is, unless its button is held or there is none.
constexpr std::chrono::milliseconds kPatience{300};

/// What was found out last, by the screen's name.
QHash<QString, QRect> visibleFrames;

QPluginLoader& plugin() {
    static QPluginLoader loader(QFileInfo(QFile::symLinkTarget(QStringLiteral("/proc/self/exe"))).path() +
                                QStringLiteral("/" LUMIVANE_LAYER_SURFACES_PLUGIN));
    return loader;
}

LayerSurfaces* surfaces() {
    return qobject_cast<LayerSurfaces*>(plugin().instance());
}

bool askCompositor() {
    // A connection that was handed down is for one use, and that is Qt's.
    if (!qEnvironmentVariableIsSet("WAYLAND_DISPLAY") || qEnvironmentVariableIsSet("WAYLAND_SOCKET") ||
        !QFileInfo::exists(plugin().fileName()))
        return false;
    if (!surfaces()) {
        logLine(QStringLiteral("No windows at a place of their own: %1").arg(plugin().errorString()));
        return false;
    }
    const bool areOffered = surfaces()->areOffered();
    if (!areOffered)
        plugin().unload();
    return areOffered;
}

void makeLayer(QWidget* window, const LayerSurfaces::Placement& placement) {
    window->winId(); // has the handle made
    window->windowHandle()->setProperty(kPlacement, QVariant::fromValue(placement));
    surfaces()->place(window->windowHandle(), placement);
}

/// Shows a window that takes no keyboard, and whatever it draws is transparent.
void showUnseen(QWindow* window, LayerSurfaces::Placement placement, const QSize& size = kNotYet) {
    window->setFlags(Qt::FramelessWindowHint | Qt::WindowDoesNotAcceptFocus);
    QSurfaceFormat format = window->format();
    format.setAlphaBufferSize(8);
    window->setFormat(format);
    window->resize(size);
    placement.keyboard = LayerSurfaces::Keyboard::None;
    surfaces()->place(window, placement);
    window->show();
}

/// Sway looks what is under the pointer at rest when a surface comes up, but does not find that one yet: only
/// when another does.
std::unique_ptr<QWindow> nudge(QScreen* screen) {
    auto window = std::make_unique<QRasterWindow>();
    window->setScreen(screen);
    showUnseen(window.get(), {});
    return window;
}

/// Lies under the pointer where a click was, until that moves. Else the bar would see the pointer come back,
/// and show its tool tip on top of what the click has opened.
class Lid : public QRasterWindow {
public:
    Lid(QScreen* screen, QPoint place, const std::function<void()>& clicked) : clicked_(clicked) {
        setScreen(screen);
        showUnseen(this,
                   {.edges = Qt::TopEdge | Qt::LeftEdge,
                    .margins = {place.x() - kHalf, place.y() - kHalf, 0, 0},
                    .overBars = true},
                   QSize(2 * kHalf + 1, 2 * kHalf + 1));
    }

protected:
    bool event(QEvent* event) override {
        if (event->type() == QEvent::Leave)
            deleteLater();
        return QRasterWindow::event(event);
    }

    void mousePressEvent(QMouseEvent* event) override {
        if (event->button() == Qt::LeftButton)
            QTimer::singleShot(0, clicked_); // which may take this window away
        else
            deleteLater(); // for the next press to reach the bar
    }

private:
    static constexpr int kHalf = 2;
    const std::function<void()> clicked_;
};

QPointer<Lid> lid;

/// The part of a screen that surely is under no bar, when `free` is the size of what bars leave.
QRect middleOf(const QRect& screen, const QSize& free) {
    const QSize bars = screen.size() - free;
    return screen.adjusted(bars.width(), bars.height(), -bars.width(), -bars.height());
}

/// One look around all screens. On each, one unseen surface fills what bars leave, and is not even drawn:
/// what it learns is its size. Where that leaves a doubt about the click, another one covers everything for a
/// moment, so that the compositor tells it where the pointer came in.
class Lookout : public QObject {
public:
    Lookout(QObject* owner, std::optional<QPoint> told,
            const std::function<void(std::optional<QPoint>)>& done, const std::function<void()>& clickedAgain)
        : QObject(owner), click_(told), done_(done), clickedAgain_(clickedAgain) {
        delete lid;
        const QList<QScreen*> screens = QGuiApplication::screens();
        for (QScreen* screen : screens) {
            View& view = views_.emplace_back();
            view.screen = screen;
            view.free = std::make_unique<QWindow>(screen);
            show(view.free.get(), false);
        }
        QTimer::singleShot(kPatience, this, &Lookout::finish);
    }

    bool eventFilter(QObject* watched, QEvent* event) override {
        for (View& view : views_) {
            if (event->type() == QEvent::Resize && watched == view.free.get() &&
                view.free->size() != kNotYet) {
                view.size = view.free->size();
                if (std::ranges::all_of(views_, [](const View& any) { return any.size.has_value(); }))
                    QMetaObject::invokeMethod(this, &Lookout::lookForPointer, Qt::QueuedConnection);
            } else if (event->type() == QEvent::Enter && watched == view.cover.get()) {
                view.pointer = static_cast<QEnterEvent*>(event)->position().toPoint();
                QMetaObject::invokeMethod(this, &Lookout::finish, Qt::QueuedConnection);
            }
        }
        return false;
    }

private:
    struct View {
        QPointer<QScreen> screen;
        std::unique_ptr<QWindow> free;
        std::unique_ptr<QRasterWindow> cover;
        std::unique_ptr<QWindow> nudge;
        std::optional<QSize> size;
        std::optional<QPoint> pointer; ///< From the screen's corner.
    };

    void show(QWindow* window, bool overBars) {
        window->installEventFilter(this);
        showUnseen(window, {.edges = kAllEdges, .margins = {}, .overBars = overBars});
    }

    /// Some bars tell a click in their own coordinates, which are never those of the lower or right edge of
    /// the screen. Plasma's are the screen's; and there a tool tip would come up anew, on top of the panel,
    /// when the pointer comes back from a cover.
    bool isToldRight() const {
        if (!click_ || qEnvironmentVariable("XDG_CURRENT_DESKTOP").split(u':').contains(u"KDE"))
            return click_.has_value();
        return std::ranges::any_of(views_, [this](const View& view) {
            if (!view.screen || !view.screen->geometry().contains(*click_))
                return false;
            const QRect middle = middleOf(view.screen->geometry(), *view.size);
            return click_->x() > middle.right() || click_->y() > middle.bottom();
        });
    }

    void lookForPointer() {
        if (isToldRight())
            return finish();
        for (View& view : views_) {
            if (view.cover || !view.screen)
                continue;
            view.cover = std::make_unique<QRasterWindow>();
            view.cover->setScreen(view.screen);
            show(view.cover.get(), true);
            view.nudge = nudge(view.screen);
        }
    }

    void finish() {
        if (!done_)
            return;
        for (const View& view : views_) {
            if (!view.screen || !view.size || !view.pointer)
                continue;
            const QRect screen = view.screen->geometry();
            const QPoint pointer = screen.topLeft() + *view.pointer;
            if (middleOf(screen, *view.size).contains(pointer))
                continue;
            click_ = pointer;
            lid = new Lid(view.screen, *view.pointer, clickedAgain_);
            connect(parent(), &QObject::destroyed, lid.get(), &QObject::deleteLater);
        }
        for (const View& view : views_) {
            if (view.screen && view.size)
                visibleFrames[view.screen->name()] =
                    LayerShell::freePart(view.screen->geometry(), *view.size,
                                         click_.value_or(view.screen->geometry().bottomRight()));
        }
        views_.clear();
        deleteLater();
        std::exchange(done_, nullptr)(click_);
    }

    std::vector<View> views_;
    std::optional<QPoint> click_;
    std::function<void(std::optional<QPoint>)> done_; ///< Until it was called.
    const std::function<void()> clickedAgain_;
};

} // namespace

bool LayerShell::isOffered() {
    static const bool isThere = askCompositor();
    return isThere;
}

bool LayerShell::isUsed() {
    return QGuiApplication::platformName().startsWith(u"wayland") && isOffered();
}

void LayerShell::lookAround(QObject* owner, std::optional<QPoint> told,
                            const std::function<void(std::optional<QPoint>)>& done,
                            const std::function<void()>& clickedAgain) {
    new Lookout(owner, told, done, clickedAgain);
}

QRect LayerShell::visibleFrame(const QScreen* screen) {
    const QRect whole = screen->geometry();
    return visibleFrames.value(screen->name(), whole) & whole;
}

QRect LayerShell::freePart(const QRect& screen, const QSize& size, const QPoint& click) {
    QRect part(screen.topLeft(), size.boundedTo(screen.size()));
    const QSize bars = screen.size() - part.size();
    // A bar at a side is the icon's own or, as docks are, at the left.
    if (click.x() <= screen.right() - bars.width())
        part.moveRight(screen.right());
    if (click.y() <= screen.center().y())
        part.moveBottom(screen.bottom());
    return part;
}

void LayerShell::place(QWidget* window, const QRect& frame, const QRect& from, QScreen* screen) {
    window->winId();
    window->windowHandle()->setScreen(screen);
    const QRect free = visibleFrame(screen);
    const bool isAtBottom = from.center().y() > screen->geometry().center().y();
    const bool isAtRight = from.center().x() > screen->geometry().center().x();
    makeLayer(window, {.edges = (isAtBottom ? Qt::BottomEdge : Qt::TopEdge) |
                                Qt::Edges(isAtRight ? Qt::RightEdge : Qt::LeftEdge),
                       .margins = {isAtRight ? 0 : frame.left() - free.left(),
                                   isAtBottom ? 0 : frame.top() - free.top(),
                                   isAtRight ? free.right() - frame.right() : 0,
                                   isAtBottom ? free.bottom() - frame.bottom() : 0}});
}

void LayerShell::takeInput(QWidget* window) {
    window->setAttribute(Qt::WA_TranslucentBackground);
    window->setMinimumSize(0, 0);
    window->setMaximumSize(QWIDGETSIZE_MAX, QWIDGETSIZE_MAX);
    makeLayer(window, {.edges = kAllEdges,
                       .margins = {},
                       .overBars = true,
                       .onActiveScreen = true,
                       .keyboard = LayerSurfaces::Keyboard::Exclusive});
    window->show();
    QObject::connect(window, &QObject::destroyed, nudge(window->screen()).release(), &QObject::deleteLater);
}

void LayerShell::placeOver(QWidget* sheet, const QWidget* window) {
    const QVariant placement =
        window->windowHandle() ? window->windowHandle()->property(kPlacement) : QVariant();
    if (!placement.isValid())
        return;
    auto below = placement.value<LayerSurfaces::Placement>();
    const QSize beside = window->size() - sheet->size();
    if (below.edges.testFlag(Qt::RightEdge))
        below.margins.setRight(std::max(0, below.margins.right() + beside.width() / 2));
    else
        below.margins.setLeft(std::max(0, below.margins.left() + beside.width() / 2));
    if (below.edges.testFlag(Qt::BottomEdge)) // for the sheet, too, to hang from the top
        below.margins.setBottom(std::max(0, below.margins.bottom() + beside.height()));
    sheet->winId();
    sheet->windowHandle()->setScreen(window->screen());
    if (!sheet->windowHandle()->property(kPlacement).isValid())
        new Outline(sheet);
    makeLayer(sheet, below);
}
