// SPDX-License-Identifier: MIT
#pragma once

#include <QString>

/// A control's text as it is spoken: "Moon" for "&Moon", "月:" for "月(&M):", "a & b" for "a && b".
QString withoutMnemonic(const QString& text);
