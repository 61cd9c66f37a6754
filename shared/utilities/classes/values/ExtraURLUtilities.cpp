// SPDX-License-Identifier: MIT
#include "shared/utilities/classes/values/ExtraURLUtilities.h"

#include <algorithm>

QUrl ExtraURLUtilities::urlWithURLString(const QString& text) {
    // Qt's strict mode would still escape what lies outside printable ASCII.
    const bool plain = std::ranges::all_of(text, [](QChar c) { return c > u' ' && c < u'\x7F'; });
    return plain ? QUrl(text, QUrl::StrictMode) : QUrl();
}
