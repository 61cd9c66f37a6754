// SPDX-License-Identifier: MIT
#include "platform/bundle/PropertyList.h"

#include <QDebug>

#include <cstdint>
#include <cstdlib>

namespace {

void demand(bool holds) {
    if (!holds)
        std::abort();
}

/// All of a value, with what is no number as a text that equals itself.
QString textOf(const QVariant& value) {
    QString text;
    QDebug(&text) << value;
    return text;
}

} // namespace

/// Any bytes are either refused with a reason or give a value that is written and read back, and what was
/// read back stays the same from then on: only types that a list can't hold have become texts.
extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    QString error;
    const QVariant root = PropertyList::fromBytes(
        QByteArray(reinterpret_cast<const char*>(data), static_cast<qsizetype>(size)), &error);
    if (!error.isEmpty()) {
        demand(!root.isValid());
        return 0;
    }
    const QVariant once = PropertyList::fromBytes(PropertyList::toBytes(root), &error);
    const QVariant twice = PropertyList::fromBytes(PropertyList::toBytes(once), &error);
    demand(error.isEmpty() && textOf(once) == textOf(twice));
    return 0;
}
