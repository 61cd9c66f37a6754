// SPDX-License-Identifier: MIT
#pragma once

#include <QString>

/// Operations that change a string in place.
namespace ExtraMutableStringUtilities {

/// Replaces every occurrence of `search`, ignoring letter case; gives how many there were. An empty search
/// occurs nowhere. What was put in is not searched again.
int replaceAll(QString& text, const QString& search, const QString& with);

/// Appends `line` on a line of its own: after a line feed, unless the text is empty or ends with one. An
/// empty line only ends the line before it.
void appendLine(QString& text, const QString& line);

} // namespace ExtraMutableStringUtilities
