// SPDX-License-Identifier: MIT
#pragma once

#include <QString>

class QTextDocument;

/// Operations that change a formatted text in place.
namespace ExtraMutableAttributedStringUtilities {

/// Replaces every occurrence of `target` (letter case counts), those too that arise from a replacement and
/// the text around it; gives how many there were. The new text looks like the first character that it
/// replaces. A replacement that holds the target is not searched again. An empty target occurs nowhere.
int replaceAllAttributedStrings(QTextDocument& text, const QString& target, const QString& with);

} // namespace ExtraMutableAttributedStringUtilities
