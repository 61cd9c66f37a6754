// SPDX-License-Identifier: MIT
#pragma once

/// Stands for the height of the menu bar, in points. On a desktop here the tray's own height is known to the
/// tray alone; this is the height that its icons are drawn for first, 22, and the tray scales from the sizes
/// it is given.
int GetMBarHeight();
