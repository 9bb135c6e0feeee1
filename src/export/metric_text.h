// The exposition formats: Prometheus's plain text and OpenMetrics, and which one a scraper wants.
#pragma once

#include "export/metric_family.h"

#include <QByteArray>

namespace MetricText {

inline constexpr char kPlainContentType[] = "text/plain; version=0.0.4; charset=utf-8";
inline constexpr char kOpenMetricsContentType[] = "application/openmetrics-text; version=1.0.0; charset=utf-8";

// Whether an Accept header prefers OpenMetrics to the plain text format (q values weighed; the
// plain format wins ties and everything unknown).
bool wantsOpenMetrics(const QByteArray& accept);

QByteArray plainText(const MetricFamilies& families);
// Ends with "# EOF".
QByteArray openMetrics(const MetricFamilies& families);

} // namespace MetricText
