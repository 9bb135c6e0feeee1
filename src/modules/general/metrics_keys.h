// The General settings of the metrics export: the running monitor also serves its figures to
// Prometheus when switched on, on the "ADDR:PORT" given.
#pragma once

namespace PrefKey {

inline constexpr char MetricsServeEnabled[] = "MetricsServeEnabled";
inline constexpr char MetricsListenAddress[] = "MetricsListenAddress";

} // namespace PrefKey
