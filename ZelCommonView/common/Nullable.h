#pragma once

#include <utility>

namespace Zel {

/// A value that may be absent. Nullable<bool> takes two bytes and is trivially copyable, so it travels by
/// value.
template <typename T>
struct Nullable {
    /// Makes an empty one.
    Nullable() = default;

    /// Makes one that holds `given`. Implicit, so that a plain T can be passed where a Nullable is asked for.
    Nullable(T given) : value(std::move(given)), hasValue(true) {}

    /// The value; it means nothing while `hasValue` is false.
    T value{};
    /// Whether there is a value. Test it before reading `value`.
    bool hasValue = false;
};

/// Equal if both are empty, whatever their `value` fields happen to hold, or if both hold equal values.
template <typename T>
bool operator==(const Nullable<T>& left, const Nullable<T>& right) {
    return left.hasValue == right.hasValue && (!left.hasValue || left.value == right.value);
}

/// The opposite of `==`.
template <typename T>
bool operator!=(const Nullable<T>& left, const Nullable<T>& right) {
    return !(left == right);
}

} // namespace Zel
