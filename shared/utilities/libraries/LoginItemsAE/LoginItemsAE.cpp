// SPDX-License-Identifier: MIT
#include "shared/utilities/libraries/LoginItemsAE/LoginItemsAE.h"

#include "platform/autostart/Autostart.h"

#include <QFileInfo>

#define LIAEAssert(condition)                                                                                \
    do {                                                                                                     \
        if (!(condition))                                                                                    \
            assertionFailed(__func__, #condition);                                                           \
    } while (false)

namespace {

[[noreturn]] void assertionFailed(const char* function, const char* condition) {
    qFatal("%s: LoginItemsAE: assertion failed: %s", function, condition);
}

LIAEStatus statusOf(const std::error_code& error) {
    using enum std::errc;
    if (!error)
        return kLIAENoError;
    if (error == no_space_on_device)
        return -34;
    if (error == read_only_file_system)
        return -44;
    if (error == file_exists)
        return -48;
    if (error == permission_denied || error == operation_not_permitted)
        return -61;
    if (error == no_such_file_or_directory || error == not_a_directory)
        return kLIAEFileNotFound;
    return error == invalid_argument ? -50 : -36;
}

/// Positions come from the list that the caller saw last; meanwhile other programs may have changed the
/// folder.
QList<Autostart::Item>& lastCopied() {
    static QList<Autostart::Item> items;
    return items;
}

} // namespace

LIAEStatus LIAECopyLoginItems(std::unique_ptr<LoginItemsList>* itemsPtr) {
    LIAEAssert(itemsPtr != NULL);
    LIAEAssert(*itemsPtr == NULL);
    lastCopied() = Autostart::items();
    auto items = std::make_unique<LoginItemsList>();
    for (const Autostart::Item& item : lastCopied()) {
        const QUrl url = QUrl::fromLocalFile(item.path);
        if (!url.isValid() || url.isEmpty())
            return kLIAEUnknownError;
        items->append({{QStringLiteral("URL"), url}, {QStringLiteral("Hidden"), item.hidden}});
    }
    *itemsPtr = std::move(items);
    return kLIAENoError;
}

LIAEStatus LIAEAddRefAtEnd(const QFileInfo* item, bool hideIt) {
    LIAEAssert(item != NULL);
    return statusOf(Autostart::append(item->absoluteFilePath(), hideIt));
}

LIAEStatus LIAEAddURLAtEnd(const QUrl* item, bool hideIt) {
    LIAEAssert(item != NULL);
    const QFileInfo file(item->toLocalFile());
    return item->isLocalFile() && file.exists() ? LIAEAddRefAtEnd(&file, hideIt) : kLIAEFileNotFound;
}

LIAEStatus LIAERemove(long itemIndex) {
    LIAEAssert(itemIndex >= 0);
    if (itemIndex >= lastCopied().size() || !Autostart::items().contains(lastCopied()[itemIndex]))
        return kLIAEFileNotFound;
    const LIAEStatus status = statusOf(Autostart::remove(lastCopied()[itemIndex]));
    if (status == kLIAENoError)
        lastCopied().removeAt(itemIndex);
    return status;
}
