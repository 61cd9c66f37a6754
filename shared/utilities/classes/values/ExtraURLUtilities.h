// SPDX-License-Identifier: MIT
#pragma once

#include <QUrl>

namespace ExtraURLUtilities {

/// A URL made from the string as it stands: nothing is escaped or guessed. An empty, invalid URL when the
/// string is not one (RFC 3986: blanks, quotes, stray per cent signs and characters outside ASCII are not
/// allowed). A string without a scheme ("www.example.com") is a relative URL, and valid.
QUrl urlWithURLString(const QString& text);

} // namespace ExtraURLUtilities
