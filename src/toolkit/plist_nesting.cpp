// Bounds a property list's nesting without recursion: the binary object table, the XML tags.
#include "toolkit/plist_nesting.h"

#include <algorithm>
#include <cstdint>
#include <optional>
#include <vector>

namespace PlistNesting {
namespace {

constexpr qsizetype kTrailerBytes = 32;

std::optional<quint64> readUnsigned(QByteArrayView bytes, quint64 at, unsigned size)
{
    if (size == 0 || size > 8 || at > static_cast<quint64>(bytes.size()) || size > bytes.size() - at)
        return std::nullopt;
    quint64 value = 0;
    for (unsigned i = 0; i < size; ++i)
        value = (value << 8) | static_cast<std::uint8_t>(bytes[static_cast<qsizetype>(at + i)]);
    return value;
}

struct Layout {
    QByteArrayView bytes;
    unsigned offsetSize = 0;
    unsigned refSize = 0;
    quint64 objects = 0;
    quint64 top = 0;
    quint64 table = 0;

    std::optional<quint64> offsetOf(quint64 object) const
    {
        return readUnsigned(bytes, table + object * offsetSize, offsetSize);
    }
};

// The references a container holds (a dictionary's keys and values alike); empty for others.
std::optional<std::vector<quint64>> childrenOf(const Layout& layout, quint64 object)
{
    const std::optional<quint64> at = layout.offsetOf(object);
    if (!at || *at >= static_cast<quint64>(layout.bytes.size()))
        return std::nullopt;
    const auto marker = static_cast<std::uint8_t>(layout.bytes[static_cast<qsizetype>(*at)]);
    const unsigned kind = marker >> 4;
    if (kind != 0xA && kind != 0xC && kind != 0xD)
        return std::vector<quint64>{};
    quint64 count = marker & 0x0F;
    quint64 refsAt = *at + 1;
    if (count == 0x0F) { // the count follows as an integer object
        const std::optional<quint64> intMarker = readUnsigned(layout.bytes, refsAt, 1);
        if (!intMarker || (*intMarker >> 4) != 0x1 || (*intMarker & 0x0F) > 3)
            return std::nullopt;
        const unsigned size = 1U << (*intMarker & 0x0F);
        const std::optional<quint64> value = readUnsigned(layout.bytes, refsAt + 1, size);
        if (!value)
            return std::nullopt;
        count = *value;
        refsAt += 1 + size;
    }
    if (kind == 0xD)
        count *= 2;
    if (count > static_cast<quint64>(layout.bytes.size()) / layout.refSize)
        return std::nullopt;
    std::vector<quint64> children;
    children.reserve(count);
    for (quint64 i = 0; i < count; ++i) {
        const std::optional<quint64> ref = readUnsigned(layout.bytes, refsAt + i * layout.refSize, layout.refSize);
        if (!ref || *ref >= layout.objects)
            return std::nullopt;
        children.push_back(*ref);
    }
    return children;
}

std::optional<Layout> layoutOf(QByteArrayView bytes)
{
    if (bytes.size() < 8 + kTrailerBytes)
        return std::nullopt;
    const QByteArrayView trailer = bytes.last(kTrailerBytes);
    Layout layout{bytes, static_cast<std::uint8_t>(trailer[6]), static_cast<std::uint8_t>(trailer[7])};
    layout.objects = readUnsigned(trailer, 8, 8).value_or(0);
    layout.top = readUnsigned(trailer, 16, 8).value_or(0);
    layout.table = readUnsigned(trailer, 24, 8).value_or(0);
    if (layout.offsetSize == 0 || layout.offsetSize > 8 || layout.refSize == 0 || layout.refSize > 8 ||
        layout.objects == 0 || layout.top >= layout.objects ||
        layout.objects > static_cast<quint64>(bytes.size()) / (layout.offsetSize + 1) ||
        layout.table > static_cast<quint64>(bytes.size()) - layout.objects * layout.offsetSize)
        return std::nullopt;
    return layout;
}

} // namespace

bool binaryNestingWithin(QByteArrayView bytes, int limit)
{
    const std::optional<Layout> layout = layoutOf(bytes);
    if (!layout)
        return false;
    // Depth-first with an explicit stack; an object's height is kept once known, so an object
    // shared by many containers is walked once, and one met again while open is a loop.
    enum : int { Unseen = -1, Open = -2 };
    std::vector<int> height(layout->objects, Unseen);
    struct Frame {
        quint64 object;
        std::vector<quint64> children;
        std::size_t next = 0;
        int tallest = 0;
    };
    std::vector<Frame> stack;
    const auto open = [&](quint64 object) {
        std::optional<std::vector<quint64>> children = childrenOf(*layout, object);
        if (!children)
            return false;
        height[object] = Open;
        stack.push_back({object, std::move(*children)});
        return static_cast<int>(stack.size()) <= limit;
    };
    if (!open(layout->top))
        return false;
    while (!stack.empty()) {
        Frame& frame = stack.back();
        if (frame.next == frame.children.size()) {
            const bool container = !frame.children.empty();
            height[frame.object] = frame.tallest + (container ? 1 : 0);
            const int done = height[frame.object];
            stack.pop_back();
            if (!stack.empty() && done > stack.back().tallest)
                stack.back().tallest = done;
            continue;
        }
        const quint64 child = frame.children[frame.next++];
        if (height[child] == Open)
            return false;
        if (height[child] != Unseen) {
            frame.tallest = std::max(frame.tallest, height[child]);
            continue;
        }
        if (!open(child))
            return false;
    }
    return height[layout->top] <= limit;
}

namespace {

bool startsAt(QByteArrayView bytes, qsizetype at, QByteArrayView word)
{
    return bytes.sliced(std::min(at, bytes.size())).startsWith(word);
}

} // namespace

bool xmlNestingWithin(QByteArrayView bytes, int limit)
{
    int depth = 0;
    for (qsizetype i = bytes.indexOf('<'); i >= 0; i = bytes.indexOf('<', i + 1)) {
        const bool closing = startsAt(bytes, i + 1, "/");
        const qsizetype name = i + (closing ? 2 : 1);
        if (!startsAt(bytes, name, "dict") && !startsAt(bytes, name, "array"))
            continue;
        const qsizetype end = bytes.indexOf('>', name);
        if (end < 0)
            return true; // unfinished text: the parser rejects it
        if (closing)
            --depth;
        else if (bytes.at(end - 1) != '/' && ++depth > limit)
            return false;
    }
    return true;
}

} // namespace PlistNesting

bool plistNestingWithin(QByteArrayView bytes, int limit)
{
    return bytes.startsWith("bplist") ? PlistNesting::binaryNestingWithin(bytes, limit)
                                      : PlistNesting::xmlNestingWithin(bytes, limit);
}
