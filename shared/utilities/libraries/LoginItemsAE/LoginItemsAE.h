// SPDX-License-Identifier: MIT
#pragma once

#include <QList>
#include <QUrl>
#include <QVariantMap>

#include <cstdint>
#include <memory>

class QFileInfo;

/// The user's login items: the entries of the XDG autostart folder. Each operation gives a status, 0 where it
/// was done; beside the statuses named here there are those that tell what the disk says (-34 full, -36 it
/// fails, -44 read-only, -48 the name is taken, -61 not permitted, and -50 for an entry that starts nothing).
/// A precondition that does not hold ends the program.

/// Login items in their order: "URL" (QUrl, a file's) and "Hidden" (bool: launched hidden) of each.
using LoginItemsList = QList<QVariantMap>;
using LIAEStatus = std::int32_t;

constexpr LIAEStatus kLIAENoError = 0;
constexpr LIAEStatus kLIAEFileNotFound = -43;
constexpr LIAEStatus kLIAEUnknownError = -4960;

/// Stores the present list; on failure stores nothing. `itemsPtr` must be given and hold no list.
/// `kLIAEUnknownError` for an item that no URL can name.
LIAEStatus LIAECopyLoginItems(std::unique_ptr<LoginItemsList>* itemsPtr);

/// Appends a login item for a file, which need not exist. `item` must be given.
LIAEStatus LIAEAddRefAtEnd(const QFileInfo* item, bool hideIt);

/// The same for a file URL; `kLIAEFileNotFound` when there is no such file. `item` must be given.
LIAEStatus LIAEAddURLAtEnd(const QUrl* item, bool hideIt);

/// Removes the login item at a position counted from 0, as the list that was last copied has it;
/// `kLIAEFileNotFound` when that list has no such item, or another program changed it since.
LIAEStatus LIAERemove(long itemIndex);
