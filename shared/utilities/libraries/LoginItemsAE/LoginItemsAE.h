// SPDX-License-Identifier: MIT
#pragma once

#include "platform/carbon/Files.h"

#include <QList>
#include <QVariantMap>

#include <memory>

/// The user's login items, read and changed by Apple Events to System Events. Each operation gives a status;
/// each blocks until System Events has answered, for five seconds at most. A precondition that does not hold
/// ends the program.

/// Login items in their order: "URL" (QUrl, a file's) and "Hidden" (bool: launched hidden) of each.
using LoginItemsList = QList<QVariantMap>;

constexpr OSStatus coreFoundationUnknownErr = -4960;

/// Stores the present list; on failure stores nothing. `itemsPtr` must be given and hold no list.
OSStatus LIAECopyLoginItems(std::unique_ptr<LoginItemsList>* itemsPtr);

/// Appends a login item for a file. `item` must be given. pathTooLongErr for a path of 1024 bytes or more,
/// errAECoercionFail for one that is no UTF-8 text.
OSStatus LIAEAddRefAtEnd(const FSRef* item, bool hideIt);

/// The same for a file URL; fnfErr when there is no such file. `item` must be given.
OSStatus LIAEAddURLAtEnd(const QUrl* item, bool hideIt);

/// Removes the login item at a position counted from 0, as the list that was last copied has it.
OSStatus LIAERemove(long itemIndex);
