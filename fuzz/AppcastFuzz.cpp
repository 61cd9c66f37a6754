// SPDX-License-Identifier: MIT
#include "platform/updates/Appcast.h"

#include <cstdlib>

namespace {

void demand(bool holds) {
    if (!holds)
        std::abort();
}

} // namespace

/// Any bytes are either refused with a reason or give items that keep what their header promises.
extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    QString error;
    const auto appcast =
        Appcast::read(QByteArray(reinterpret_cast<const char*>(data), static_cast<qsizetype>(size)), &error);
    demand(appcast.has_value() == error.isEmpty());
    if (!appcast)
        return 0;
    demand(!appcast->items().isEmpty());
    for (const AppcastItem& item : appcast->items()) {
        demand(!item.build.isEmpty() && !item.version.contains(u'\n') && !item.title.contains(u'\n'));
        demand(item.page.isEmpty() || item.page.scheme() == u"https" || item.page.scheme() == u"http");
        demand(compareBuildNumbers(item.build, item.build) == 0);
        demand(compareBuildNumbers(item.build, appcast->newest().build) <= 0);
    }
    return 0;
}
