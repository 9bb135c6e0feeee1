// Immutable, shared sample history: each append yields a new list, so readers keep a stable one.
#pragma once

#include <cstddef>
#include <memory>
#include <vector>

// Samples are held by shared pointer, so an append copies pointers, never the samples.
template <class Sample>
class History {
public:
    static constexpr std::size_t kMaxSamples = 512;

    History() = default;

    // A new history with the sample appended and the oldest dropped past kMaxSamples.
    // The receiver is left untouched: a status item may still be drawing from it.
    [[nodiscard]] History appended(Sample sample) const
    {
        auto next = std::make_shared<Items>();
        const std::size_t have = size();
        const std::size_t skip = have + 1 > kMaxSamples ? have + 1 - kMaxSamples : 0;
        next->reserve(have - skip + 1);
        if (items_)
            next->insert(next->end(), items_->begin() + static_cast<std::ptrdiff_t>(skip), items_->end());
        next->push_back(std::make_shared<const Sample>(std::move(sample)));
        return History(std::move(next));
    }

    // A history of the given samples, oldest first, of which the newest kMaxSamples are kept:
    // for rewriting a whole history at once.
    [[nodiscard]] static History fromSamples(std::vector<Sample> samples)
    {
        auto items = std::make_shared<Items>();
        const std::size_t skip = samples.size() > kMaxSamples ? samples.size() - kMaxSamples : 0;
        items->reserve(samples.size() - skip);
        for (std::size_t i = skip; i < samples.size(); ++i)
            items->push_back(std::make_shared<const Sample>(std::move(samples[i])));
        return History(std::move(items));
    }

    // False until the first sample is kept.
    [[nodiscard]] bool exists() const { return items_ != nullptr; }
    [[nodiscard]] std::size_t size() const { return items_ ? items_->size() : 0; }
    [[nodiscard]] bool empty() const { return size() == 0; }
    // Oldest first; index size() - 1 is the newest.
    [[nodiscard]] const Sample& operator[](std::size_t i) const { return *(*items_)[i]; }
    [[nodiscard]] const Sample& back() const { return *items_->back(); }
    // Identity of the underlying list, for tests that prove a history was replaced, not edited.
    [[nodiscard]] const void* identity() const { return items_.get(); }

private:
    using Items = std::vector<std::shared_ptr<const Sample>>;
    explicit History(std::shared_ptr<const Items> items) : items_(std::move(items)) {}

    std::shared_ptr<const Items> items_;
};
