// The detail panel under the Memory menu's graph: the parts, paging, swap, and the processes
// that hold the most memory.
#pragma once

#include "collect/history.h"
#include "collect/memory_sample.h"
#include "collect/process_list.h"
#include "modules/memory/memory_picture_settings.h"

#include <QThreadPool>
#include <QWidget>

#include <array>
#include <cstdint>

class LoadSystemInformation;
class QLabel;

// No purge command here: Linux has no counterpart of freeing inactive memory on request.
class Memory_MenuController final : public QWidget {
    Q_OBJECT
public:
    static constexpr std::size_t kPartRows = 8;
    static constexpr int kProcessRows = 10;

    explicit Memory_MenuController(LoadSystemInformation& loadInfo, QWidget* parent = nullptr);
    ~Memory_MenuController() override;

    // Refreshes the names of running desktop applications.
    void reloadProcDict();
    // Every tick while the menu is open: the parts, paging and swap at once; the processes from
    // the background, a moment later. seconds is what the newest sample covers.
    void replaceData(double seconds, const MemoryPictureSettings& settings, const History<MemorySample>& resumeArray,
                     std::size_t pageSize, std::int64_t totalPages);

    // The rows as shown, for tests and the snapshot.
    QString partText(std::size_t row) const;
    QString pageRateText(std::size_t which) const; // 0 page-ins, 1 page-outs
    QString swapText() const;
    QString processNames() const;

Q_SIGNALS:
    // The background process rows have been shown.
    void detailsUpdated();

private:
    void applyDetails(const QStringList& processes);

    LoadSystemInformation& loadInfo_;
    std::array<QLabel*, kPartRows> swatches_{};
    std::array<QLabel*, kPartRows> names_{};
    std::array<QLabel*, kPartRows> sizes_{};
    QLabel* totalLabel_ = nullptr;
    std::array<QLabel*, 2> pageRates_{};
    QLabel* swapUsedLabel_ = nullptr;
    QLabel* swapAreasLabel_ = nullptr;
    QLabel* processNameLabel_ = nullptr;
    QLabel* processSizeLabel_ = nullptr;
    ProcessDict procDict_;
    bool detailsInFlight_ = false;
    // Last member: its destructor waits for background work that uses the members above.
    QThreadPool pool_;
};
