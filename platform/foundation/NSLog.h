// SPDX-License-Identifier: MIT
#pragma once

#include <QString>

/// Stands for the platform log. Backed by Qt's message handler, so that a line reaches standard error or the
/// journal, whichever the session uses, and tests can catch it. A message is one line: control characters and
/// what turns the order of letters, as a foreign text may hold them, are written as \n or \u202e.
void NSLog(const QString& message);
