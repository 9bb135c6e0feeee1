// The sampled data: one history per module, replaced (never edited) by each cycle.
#pragma once

#include "collect/history.h"

#include <array>
#include <cstddef>
#include <memory>

// Each module keeps its history in its own slot, whatever its sample type, so a new module
// brings its sample type and needs no change here. Copies are cheap (shared histories, no
// allocation), so the main thread can keep the last finished set while the next cycle builds
// a new one.
class InfoDict {
public:
    static constexpr std::size_t kSlots = 16;

    // The slot's history; an empty one (exists() false) when the slot holds none of that type.
    template <class Sample> [[nodiscard]] History<Sample> history(std::size_t slot) const
    {
        const Slot& s = slots_.at(slot);
        if (s.type != typeTag<Sample>())
            return {};
        using Chunks = typename History<Sample>::Chunks;
        return History<Sample>(std::static_pointer_cast<const Chunks>(s.chunks), s.start, s.size);
    }

    template <class Sample> void setHistory(std::size_t slot, const History<Sample>& history)
    {
        slots_.at(slot) = {history.chunks_, history.start_, history.size_, typeTag<Sample>()};
    }

    // Whether the slot's history has kept a sample once (it may be empty again after a rewrite).
    [[nodiscard]] bool exists(std::size_t slot) const { return slots_.at(slot).chunks != nullptr; }
    [[nodiscard]] std::size_t size(std::size_t slot) const { return slots_.at(slot).size; }

private:
    struct Slot {
        std::shared_ptr<const void> chunks;
        std::size_t start = 0;
        std::size_t size = 0;
        const void* type = nullptr;
    };

    template <class Sample> static const void* typeTag()
    {
        static const char tag = 0;
        return &tag;
    }

    std::array<Slot, kSlots> slots_{};
};
