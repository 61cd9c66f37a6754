// SPDX-License-Identifier: MIT
#pragma once

#include <QString>

/// Stands for the platform log. Backed by Qt's message handler, so that a line reaches standard error or the
/// journal, whichever the session uses, and tests can catch it.
void NSLog(const QString& message);
