// SPDX-License-Identifier: MIT
#pragma once

#include <QDateTime>

#include <optional>

/// The present moment: the system clock, which a caller can hold still. A refresh then sees one moment
/// throughout, and a test the moment that it chose.
namespace Clock {

/// The present instant (UTC), or the held one.
QDateTime now();

/// Another number for each outermost hold, 0 while there is none: what else is to stay the same throughout a
/// refresh is read once for it.
unsigned holdNumber();

/// Keeps `now()` from moving while the object lives. Holds may nest; the outermost decides.
class Hold {
public:
    Hold();                                  ///< holds the present
    explicit Hold(const QDateTime& instant); ///< holds a moment of the caller's choice
    ~Hold();
    Hold(const Hold&) = delete;
    Hold& operator=(const Hold&) = delete;

private:
    bool outermost_;
};

} // namespace Clock
