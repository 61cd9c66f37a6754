// SPDX-License-Identifier: MIT
#include "platform/foundation/NSPropertyList.h"

#include <cstdint>
#include <cstdlib>

namespace {

void demand(bool holds) {
    if (!holds)
        std::abort();
}

} // namespace

/// Any bytes are either refused with a reason or give a value that is the same after it was written and read.
extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    QString error;
    const QVariant root = NSPropertyList::fromBytes(
        QByteArray(reinterpret_cast<const char*>(data), static_cast<qsizetype>(size)), &error);
    if (!error.isEmpty()) {
        demand(!root.isValid());
        return 0;
    }
    const QByteArray written = NSPropertyList::toBytes(root);
    const QVariant again = NSPropertyList::fromBytes(written, &error);
    demand(error.isEmpty() && NSPropertyList::toBytes(again) == written);
    return 0;
}
