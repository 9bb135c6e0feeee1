// Immutable, shared sample history: each append yields a new list, so readers keep a stable one.
#pragma once

#include <cstddef>
#include <memory>
#include <vector>

template <class Sample>
class History {
public:
    static constexpr std::size_t kMaxSamples = 512;

    History() = default;

    // A new history with the sample appended and the oldest dropped past kMaxSamples.
    // The receiver is left untouched: a status item may still be drawing from it.
    [[nodiscard]] History appended(Sample sample) const
    {
        auto next = std::make_shared<std::vector<Sample>>();
        const std::size_t have = size();
        const std::size_t skip = have + 1 > kMaxSamples ? have + 1 - kMaxSamples : 0;
        next->reserve(have - skip + 1);
        if (items_)
            next->insert(next->end(), items_->begin() + static_cast<std::ptrdiff_t>(skip), items_->end());
        next->push_back(std::move(sample));
        return History(std::move(next));
    }

    [[nodiscard]] bool exists() const { return items_ != nullptr; }
    [[nodiscard]] std::size_t size() const { return items_ ? items_->size() : 0; }
    [[nodiscard]] bool empty() const { return size() == 0; }
    [[nodiscard]] const Sample& back() const { return items_->back(); }
    [[nodiscard]] const Sample& operator[](std::size_t i) const { return (*items_)[i]; }
    [[nodiscard]] auto begin() const { return items_ ? items_->cbegin() : empty_.cbegin(); }
    [[nodiscard]] auto end() const { return items_ ? items_->cend() : empty_.cend(); }
    // Identity of the underlying list, for tests that prove a history was replaced, not edited.
    [[nodiscard]] const void* identity() const { return items_.get(); }

private:
    explicit History(std::shared_ptr<const std::vector<Sample>> items) : items_(std::move(items)) {}

    std::shared_ptr<const std::vector<Sample>> items_;
    inline static const std::vector<Sample> empty_{};
};
