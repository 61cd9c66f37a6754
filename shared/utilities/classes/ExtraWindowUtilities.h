// SPDX-License-Identifier: MIT
#pragma once

class QWidget;

/// Operations on windows that block until they are done.
namespace ExtraWindowUtilities {

/// A window's alpha, 0 to 1; 1 until it is set. Kept apart from the platform's opacity, which is rounded.
float alphaValue(const QWidget* window);
void setAlphaValue(QWidget* window, float alpha);

/// Raises alpha to 1 in steps of 0.1. The window must be ordered in already.
void fadeShowSynchronous(QWidget* window);

/// Lowers alpha to 0 in steps of 0.1, then orders the window out.
void fadeHideSynchronous(QWidget* window);

/// Height of the frame above and below the content; 0 for a borderless window.
float titleBarHeight(const QWidget* window);

} // namespace ExtraWindowUtilities
