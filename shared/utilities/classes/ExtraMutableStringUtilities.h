// SPDX-License-Identifier: MIT
#pragma once

#include <QString>

/// Operations that change a string in place.
namespace ExtraMutableStringUtilities {

/// Replaces every occurrence of `search`, ignoring letter case; gives how many there were. An empty search
/// occurs nowhere. What was put in is not searched again.
int replaceAll(QString& text, const QString& search, const QString& with);

} // namespace ExtraMutableStringUtilities
