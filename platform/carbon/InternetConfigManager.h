// SPDX-License-Identifier: MIT
#pragma once

#include "platform/carbon/MacTypes.h"
#include "platform/foundation/NSStringEncoding.h"

/// Stands for Internet Config: the application that the user chose for each kind of address. Backed by GIO's
/// default applications, which the desktops keep in their mimeapps.list files.

constexpr OSStatus icPrefNotFoundErr = -666;

/// A session; one is opened for one signature and closed once.
using ICInstance = struct ICSession*;

/// An application, as a preference names it.
struct ICAppSpec {
    OSType fCreator;                   ///< creator code; programs here have none: '????'
    std::array<std::uint8_t, 64> name; ///< Pascal string in Mac Roman, which the workspace knows it by
};
static_assert(sizeof(ICAppSpec) == 68);

/// Opens a session for the application of a signature; `paramErr` without a place for its handle.
OSStatus ICStart(ICInstance* instance, OSType signature);

/// Closes a session; `paramErr` when there is none.
OSStatus ICStop(ICInstance instance);

/// The application for the scheme in a key "Helper•<scheme>". Where GIO knows of none that can be started,
/// the one that the user's lists name all the same. `icPrefNotFoundErr` when nothing is named for the scheme,
/// and for other keys.
OSStatus ICGetPref(ICInstance instance, const Str255& key, ICAppSpec* value);

/// Opens the address between two places of UTF-8 text, without waiting: by the default application of its
/// scheme (`hint` where it has none), else by the desktop's own `xdg-open` where that is installed. The
/// status is that of LSOpenFromURLSpec; `paramErr` for a selection outside the text.
OSStatus ICLaunchURL(ICInstance instance, const Str255& hint, QByteArrayView text,
                     std::int32_t selectionStart, std::int32_t selectionEnd);
