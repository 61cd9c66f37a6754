// SPDX-License-Identifier: MIT
#pragma once

#include <QList>
#include <QString>

#include <system_error>

/// The user's XDG autostart folder, `autostart` in `configFolder`, as a list of login items. Each item is one
/// desktop entry. Entries that were added here carry the key X-LoginItem-Path; all others are another
/// program's and are read, never written.
namespace Autostart {

struct Item {
    QString file; ///< the entry's name in the folder
    QString path; ///< what was added; of another program's entry the program that it starts, else the entry
    bool hidden = false; ///< to be launched hidden

    friend bool operator==(const Item&, const Item&) = default;
};

/// The entries that this desktop starts at login: other programs' by file name, then those added here in the
/// order of their adding. What can't be read as an entry is left out, with one log line a file and run.
QList<Item> items();

/// Adds an entry for a program, or for what a desktop entry starts, at the end, by its absolute path. One
/// that was added for the same path before, switched off or not, gives way to it.
/// `std::errc::invalid_argument` for a desktop entry that starts nothing, else the disk's error; then the
/// folder is as it was.
std::error_code append(const QString& path, bool hidden);

/// Has the entry that was added for the desktop entry `path` start its program by the absolute path, where an
/// earlier version left it to the login's PATH to find one. All else in it stays.
void mend(const QString& path);

/// Removes the item's file and nothing else; the disk's error where it refuses.
std::error_code remove(const Item& item);

} // namespace Autostart
