// Arithmetic on the kernel's cumulative 64-bit counters: wrap-aware growth and saturated figures.
#pragma once

#include <cstdint>
#include <limits>

namespace Counter {

inline constexpr std::uint64_t kHalfRange = std::uint64_t{1} << 63;
inline constexpr std::int64_t kLargest = std::numeric_limits<std::int64_t>::max();
inline constexpr std::int64_t kSmallest = std::numeric_limits<std::int64_t>::min();

// How far a counter moved between two readings. A counter passing 2^64 starts again from 0, and
// the distance modulo 2^64 is still the true growth; one that seems to have moved more than
// half the range went backwards (a device reset, an interface that left a sum) and grew by
// nothing.
constexpr std::uint64_t growth(std::uint64_t now, std::uint64_t before)
{
    const std::uint64_t moved = now - before;
    return moved >= kHalfRange ? 0 : moved;
}

// A signed figure kept with the bits of an unsigned counter, read back as the counter it was.
constexpr std::uint64_t asCounter(std::int64_t kept)
{
    return static_cast<std::uint64_t>(kept);
}

// An unsigned figure shown where only signed ones fit: the largest signed one when beyond it.
constexpr std::int64_t saturated(std::uint64_t value)
{
    return value > static_cast<std::uint64_t>(kLargest) ? kLargest : static_cast<std::int64_t>(value);
}

constexpr std::int64_t saturatedSum(std::int64_t a, std::int64_t b)
{
    std::int64_t sum = 0;
    if (__builtin_add_overflow(a, b, &sum))
        return b > 0 ? kLargest : kSmallest;
    return sum;
}

constexpr std::int64_t saturatedDifference(std::int64_t a, std::int64_t b)
{
    std::int64_t difference = 0;
    if (__builtin_sub_overflow(a, b, &difference))
        return b < 0 ? kLargest : kSmallest;
    return difference;
}

constexpr std::int64_t saturatedProduct(std::int64_t a, std::int64_t b)
{
    std::int64_t product = 0;
    if (__builtin_mul_overflow(a, b, &product))
        return (a < 0) == (b < 0) ? kLargest : kSmallest;
    return product;
}

} // namespace Counter
