// One exported metric family: its name, kind, unit, help text and the points of its series.
#pragma once

#include <QByteArray>

#include <memory>
#include <utility>
#include <vector>

enum class MetricType { Counter, Gauge };

struct MetricPoint {
    std::vector<std::pair<QByteArray, QByteArray>> labels; // name, value (UTF-8, unescaped)
    double value = 0;
};

struct MetricFamily {
    // The family's name as OpenMetrics spells it: a counter's without "_total", ending in the
    // unit when there is one ("tarvel_cpu_seconds").
    QByteArray name;
    MetricType type = MetricType::Gauge;
    QByteArray unit; // empty for none
    QByteArray help;
    std::vector<MetricPoint> points;
};

using MetricFamilies = std::vector<MetricFamily>;
// What a scrape serves: shared, never changed once made, so the server can hold it while the
// next cycle's figures are built.
using SharedMetricFamilies = std::shared_ptr<const MetricFamilies>;
