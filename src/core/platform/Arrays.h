#pragma once
// Arrays with the toolkit's bounds: indexed from a lower bound (1 for the
// program's arrays of cards and locations), and an index outside the bounds
// raises "Subscript out of range" instead of reading stray memory.
#include <vector>

#include "core/platform/Errors.h"

template <class T>
class BoundedArray {
public:
    BoundedArray() = default;
    BoundedArray(int lower, int upper) { Redim(lower, upper); }

    // Sizes the array lower .. upper afresh, every element default-made. An
    // upper bound below the lower leaves it empty.
    void Redim(int lower, int upper) {
        lower_ = lower;
        items_.assign(upper >= lower ? static_cast<std::size_t>(upper - lower + 1) : 0, T{});
    }
    // Sizes it lower .. upper keeping what fits.
    void RedimPreserve(int upper) { items_.resize(upper >= lower_ ? static_cast<std::size_t>(upper - lower_ + 1) : 0); }
    void Clear() { items_.clear(); }

    int LBound() const { return lower_; }
    int UBound() const { return lower_ + static_cast<int>(items_.size()) - 1; }
    int Count() const { return static_cast<int>(items_.size()); }
    bool InBounds(int i) const { return i >= lower_ && i <= UBound(); }

    T& operator()(int i) {
        if (!InBounds(i)) RaiseError(errSubscriptOutOfRange);
        return items_[static_cast<std::size_t>(i - lower_)];
    }
    const T& operator()(int i) const {
        if (!InBounds(i)) RaiseError(errSubscriptOutOfRange);
        return items_[static_cast<std::size_t>(i - lower_)];
    }

    auto begin() { return items_.begin(); }
    auto end() { return items_.end(); }
    auto begin() const { return items_.begin(); }
    auto end() const { return items_.end(); }

private:
    int lower_ = 1;
    std::vector<T> items_;
};
