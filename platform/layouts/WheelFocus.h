// SPDX-License-Identifier: MIT
#pragma once

class QObject;

/// Keeps the mouse wheel from a control that changes its value by it (a choice, a slider, a number or date
/// field) unless the control has the keyboard's focus, which the wheel does not give it either: otherwise
/// what lies around it scrolls. Does nothing to any other object.
void actOnWheelOnlyWithFocus(QObject* control);
