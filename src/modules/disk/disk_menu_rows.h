// The Disk drop-down's rows and the menu bar's words, as text.
#pragma once

#include "collect/disk_sample.h"
#include "collect/history.h"
#include "collect/storage_descriptions.h"
#include "modules/disk/disk_bar_width.h"

#include <QString>

#include <vector>

// The kernel's name, then the model when known: "sda  Samsung SSD 860".
QString diskTitleText(const DiskBaseEntry& disk);

// The hardware facts known of the disk, joined by " · ": vendor, revision, serial number,
// medium, rotation rate, size. Empty when nothing is known.
QString diskFactsText(const DiskBaseEntry& disk);

// "Read 1.2MB/s  Write 0.0KB/s" between the newest two samples.
QString diskRatesText(const History<DiskSample>& history, const QString& key);

// What the disk has transferred since the system started: "Read 12.3GB  Written 4.5GB"; empty
// before the first sample holding it.
QString diskTotalsText(const History<DiskSample>& history, const QString& key);

// The menu bar's figures as words, per set: "sda read 1.2MB/s  write 0.0KB/s"; sets apart by
// " | ". The combined set has no name.
QString diskBarText(const std::vector<StorageBarSet>& sets, const DiskBaseDict& diskBaseDict,
                    const History<DiskSample>& history);
