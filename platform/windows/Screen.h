// SPDX-License-Identifier: MIT
#pragma once

#include <QRect>

#include <vector>

class QScreen;

/// What bars leave of a screen: as QScreen tells, and on X11 with several screens, where that knows nothing
/// of bars, as the bars' windows tell.
namespace Screen {

/// The part of the screen that bars leave to windows, in Qt's coordinates (y downwards).
QRect visibleFrame(const QScreen* screen);

/// Whether the pointer, as far as its place is known, is on a bar: outside what bars leave, or, on X11, on
/// the window of one that hides itself and takes nothing.
bool isPointerOnBar();

/// What a bar takes of the desktop at one of its edges. It reaches to the edge over what other screens lie
/// between.
struct Strut {
    Qt::Edge edge = Qt::TopEdge;
    QRect taken;
};

/// `screen` without the struts that lie at its own edges; one that takes its middle is another screen's. All
/// in pixels of the desktop.
QRect without(const std::vector<Strut>& struts, const QRect& screen);

} // namespace Screen
