// SPDX-License-Identifier: MIT
#pragma once

#include <QIcon>

/// The panel's own small symbols, drawn in the text colour of whatever palette they are shown in and at any
/// scale.
namespace ControlIcon {

enum class Symbol { Gear, UtilityWindow, Hide };

QIcon icon(Symbol symbol);

} // namespace ControlIcon
