// Immutable, shared sample history: each append yields a new list, so readers keep a stable one.
#pragma once

#include <cstddef>
#include <memory>
#include <vector>

// Samples are held by shared pointer in chunks of kChunkSize, themselves shared: an append copies
// the short list of chunks and the last, partly filled chunk, never the samples and never the
// whole history, so keeping 512 samples costs about as much per append as keeping 64.
class InfoDict;

template <class Sample> class History {
public:
    static constexpr std::size_t kMaxSamples = 512;

    History() = default;

    // A new history with the sample appended and the oldest dropped past kMaxSamples.
    // The receiver is left untouched: a status item may still be drawing from it.
    [[nodiscard]] History appended(Sample sample) const
    {
        auto chunks = chunks_ ? std::make_shared<Chunks>(*chunks_) : std::make_shared<Chunks>();
        auto item = std::make_shared<const Sample>(std::move(sample));
        if (chunks->empty() || chunks->back()->size() == kChunkSize) {
            auto chunk = std::make_shared<Chunk>();
            chunk->reserve(kChunkSize);
            chunk->push_back(std::move(item));
            chunks->push_back(std::move(chunk));
        } else {
            auto last = std::make_shared<Chunk>();
            last->reserve(kChunkSize);
            *last = *chunks->back();
            last->push_back(std::move(item));
            chunks->back() = std::move(last);
        }
        std::size_t start = start_;
        std::size_t size = size_ + 1;
        if (size > kMaxSamples) {
            ++start;
            --size;
            if (start == kChunkSize) {
                chunks->erase(chunks->begin());
                start = 0;
            }
        }
        return History(std::move(chunks), start, size);
    }

    // A history of the given samples, oldest first, of which the newest kMaxSamples are kept:
    // for rewriting a whole history at once.
    [[nodiscard]] static History fromSamples(std::vector<Sample> samples)
    {
        History history;
        const std::size_t skip = samples.size() > kMaxSamples ? samples.size() - kMaxSamples : 0;
        for (std::size_t i = skip; i < samples.size(); ++i)
            history = history.appended(std::move(samples[i]));
        if (samples.empty())
            history.chunks_ = std::make_shared<const Chunks>();
        return history;
    }

    // False until the first sample is kept.
    [[nodiscard]] bool exists() const { return chunks_ != nullptr; }
    [[nodiscard]] std::size_t size() const { return size_; }
    [[nodiscard]] bool empty() const { return size_ == 0; }
    // Oldest first; index size() - 1 is the newest.
    [[nodiscard]] const Sample& operator[](std::size_t i) const
    {
        const std::size_t at = start_ + i;
        return *(*(*chunks_)[at / kChunkSize])[at % kChunkSize];
    }
    [[nodiscard]] const Sample& back() const { return *chunks_->back()->back(); }
    // Identity of the underlying list, for tests that prove a history was replaced, not edited.
    [[nodiscard]] const void* identity() const { return chunks_.get(); }

private:
    // The sampled-data set keeps histories of any sample type without knowing them.
    friend class InfoDict;

    static constexpr std::size_t kChunkSize = 64;
    using Chunk = std::vector<std::shared_ptr<const Sample>>;
    using Chunks = std::vector<std::shared_ptr<const Chunk>>;
    History(std::shared_ptr<const Chunks> chunks, std::size_t start, std::size_t size)
        : chunks_(std::move(chunks))
        , start_(start)
        , size_(size)
    {}

    std::shared_ptr<const Chunks> chunks_;
    std::size_t start_ = 0; // index of the oldest sample in the first chunk
    std::size_t size_ = 0;
};
