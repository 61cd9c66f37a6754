// SPDX-License-Identifier: MIT
#pragma once

#include <QDBusArgument>

#include <tuple>

/// A structure of the bus: a type whose static `fields` gives references to its members, in their order
/// there.
template <typename T>
concept DBusStructure = requires(T& structure) {
    T::fields(structure);
};

template <DBusStructure T>
QDBusArgument& operator<<(QDBusArgument& argument, const T& structure) {
    argument.beginStructure();
    std::apply([&](const auto&... field) { (argument << ... << field); }, T::fields(structure));
    argument.endStructure();
    return argument;
}

template <DBusStructure T>
const QDBusArgument& operator>>(const QDBusArgument& argument, T& structure) {
    argument.beginStructure();
    std::apply([&](auto&... field) { (argument >> ... >> field); }, T::fields(structure));
    argument.endStructure();
    return argument;
}
