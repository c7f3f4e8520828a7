#pragma once
// Element i (from 1) of a record's array of locations or table positions; an
// index outside it is a subscript error, as for every array of the program.
#include <array>

#include "core/platform/Errors.h"

template <class T, std::size_t N>
T& Element(std::array<T, N>& values, int i) {
    if (i < 1 || i > static_cast<int>(N)) RaiseError(errSubscriptOutOfRange);
    return values[static_cast<std::size_t>(i - 1)];
}
template <class T, std::size_t N>
const T& Element(const std::array<T, N>& values, int i) {
    if (i < 1 || i > static_cast<int>(N)) RaiseError(errSubscriptOutOfRange);
    return values[static_cast<std::size_t>(i - 1)];
}
