// SPDX-License-Identifier: MIT
#include "platform/bundle/PropertyList.h"

#include <cstdint>
#include <cstdlib>

/// Any bytes are either refused with a reason or give a value.
extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    QString error;
    const QVariant root = PropertyList::fromBytes(
        QByteArray(reinterpret_cast<const char*>(data), static_cast<qsizetype>(size)), &error);
    if (!error.isEmpty() && root.isValid())
        std::abort();
    return 0;
}
