// SPDX-License-Identifier: MIT
#include "platform/locale/NumberFormatter.h"
#include "shared/utilities/classes/AskNumber.h"

#include <algorithm>
#include <cmath>
#include <cstdint>
#include <cstdlib>
#include <limits>

namespace {

void check(bool holds) {
    if (!holds)
        std::abort();
}

/// The C library's answer, for texts that it reads by the same rules: nothing hexadecimal, no names.
float judgedByTheLibrary(const QByteArray& text) {
    constexpr double kLargest = std::numeric_limits<float>::max();
    return static_cast<float>(std::clamp(std::strtod(text.constData(), nullptr), -kLargest, kLargest));
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    const QByteArray bytes(reinterpret_cast<const char*>(data), static_cast<qsizetype>(size));
    const QString typed = QString::fromUtf8(bytes);
    const std::optional<QString> answer = AskNumber::acceptedAnswer(typed);
    check(answer.has_value() == !(typed.isEmpty() || typed == u"+"));
    if (!answer)
        return 0;
    check(!answer->isEmpty() && typed.endsWith(*answer) &&
          typed.size() - answer->size() == (typed.startsWith(u'+') ? 1 : 0));

    const float number = NumberFormatter::leadingNumber(*answer);
    check(std::isfinite(number));
    const QByteArray plain = answer->toUtf8();
    const bool isPlain = std::all_of(plain.begin(), plain.end(), [](char c) {
        return QByteArrayLiteral(" \t0123456789+-.eE").contains(c);
    });
    check(!isPlain || number == judgedByTheLibrary(plain));
    return 0;
}
