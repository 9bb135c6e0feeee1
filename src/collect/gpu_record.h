// One display controller as the CPU panel lists it.
#pragma once

#include <QString>

#include <cstdint>

struct GpuRecord {
    QString gpuName;          // vendor and device name, or "Unknown Device"
    QString totlStr = "--";   // video memory as "<n>MB"
    QString usedStr = "--";   // video memory in use as "<n>%"
    std::int64_t totlLl = -1; // bytes; -1 when the driver does not publish them
    std::int64_t usedLl = -1;
    std::int64_t freeLl = -1;

    bool operator==(const GpuRecord&) const = default;
};
