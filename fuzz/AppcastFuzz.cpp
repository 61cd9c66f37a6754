// SPDX-License-Identifier: MIT
#include "platform/updates/Appcast.h"

#include <cstdlib>

namespace {

void demand(bool holds) {
    if (!holds)
        std::abort();
}

} // namespace

/// Any bytes are either refused with a reason or give an item that keeps what its header promises.
extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    QString error;
    const auto item =
        newestItem(QByteArray(reinterpret_cast<const char*>(data), static_cast<qsizetype>(size)), &error);
    demand(item.has_value() == error.isEmpty());
    if (!item)
        return 0;
    demand(!item->build.isEmpty() && !item->version.contains(u'\n') && !item->title.contains(u'\n'));
    demand(item->page.isEmpty() || item->page.scheme() == u"https");
    demand(compareBuildNumbers(item->build, item->build) == 0);
    return 0;
}
