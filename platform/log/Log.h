// SPDX-License-Identifier: MIT
#pragma once

#include <QString>

/// Logs a line through Qt's message handler: it reaches standard error or the journal, whichever the session
/// uses, and tests can catch it. A message is one line: control characters and what turns the order of
/// letters, as a foreign text may hold them, are written as \n or \u202e.
void logLine(const QString& message);
