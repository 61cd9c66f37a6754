// SPDX-License-Identifier: MIT
#pragma once

#include "shared/utilities/classes/values/Range.h"

#include <concepts>

class QImage;
class QPixmap;
class QTextDocument;
class QTextEdit;

/// Tests on anything that holds something. What a test can't answer does not compile.
namespace ExtraContainerUtilities {

template <typename T>
concept HasLength = requires(const T& object) {
    { object.length() } -> std::convertible_to<qsizetype>;
};

template <typename T>
concept HasCount = requires(const T& object) {
    { object.count() } -> std::convertible_to<qsizetype>;
};

/// The standard library's containers call their count so; a widget's size is not a number.
template <typename T>
concept HasSize = requires(const T& object) {
    { object.size() } -> std::convertible_to<qsizetype>;
};

/// Labels, fields and buttons.
template <typename T>
concept HasText = requires(const T& object) {
    { object.text().isEmpty() } -> std::convertible_to<bool>;
};

/// Text views and documents.
template <typename T>
concept HasPlainText = requires(const T& object) {
    { object.toPlainText().isEmpty() } -> std::convertible_to<bool>;
};

/// A widget has a width and a height too, but is no image.
template <typename T>
concept IsImage = std::derived_from<T, QImage> || std::derived_from<T, QPixmap>;

/// Item models and tables.
template <typename T>
concept HasRows = requires(const T& object) {
    { object.rowCount() } -> std::convertible_to<int>;
};

template <typename T>
concept HasRange = HasLength<T> || HasCount<T> || HasSize<T>;

template <HasRange T>
qsizetype lengthOf(const T& object) {
    if constexpr (HasLength<T>)
        return static_cast<qsizetype>(object.length());
    else if constexpr (HasCount<T>)
        return static_cast<qsizetype>(object.count());
    else
        return static_cast<qsizetype>(object.size());
}

/// Whether a string or collection holds nothing, a control shows no text, an image has no width or height, or
/// a table has no rows.
template <typename T>
requires HasRange<T> || HasText<T> || HasPlainText<T> || IsImage<T> || HasRows<T>
bool isEmpty(const T& object) {
    if constexpr (HasRange<T>)
        return lengthOf(object) == 0;
    else if constexpr (HasText<T>)
        return object.text().isEmpty();
    else if constexpr (HasPlainText<T>)
        return object.toPlainText().isEmpty();
    else if constexpr (IsImage<T>)
        return object.width() == 0 || object.height() == 0;
    else
        return object.rowCount() == 0;
}

/// Replaces what a text view holds by a copy of `text`, formats and all, and shows its start. Nobody who
/// listens to the view hears of it.
void setAttributedString(QTextEdit* view, const QTextDocument& text);

/// The opposite of equality.
template <typename T, std::equality_comparable_with<T> U>
bool isNotEqual(const T& object, const U& other) {
    return !(object == other);
}

/// The range over all of a string or collection.
template <HasRange T>
Range wholeRange(const T& object) {
    return {0, lengthOf(object)};
}

} // namespace ExtraContainerUtilities
