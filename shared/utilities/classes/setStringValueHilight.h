// SPDX-License-Identifier: MIT
#pragma once

#include <QLabel>

/// While true, as at the program's start, text fields are filled in plain.
inline bool gKeepBlack = true;

/// Fills a field so that a changed value stands out: once `gKeepBlack` is clear, a text that differs from the
/// one shown is shown in dark red (on a dark panel a red light enough to read), the same text plainly. The
/// field keeps its alignment and its other colours.
void setStringValueHilight(QLabel* field, const QString& text);
