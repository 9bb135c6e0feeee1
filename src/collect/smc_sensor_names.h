// The names the SMC's temperature keys go by when the system's own description is silent.
#pragma once

#include <utility>
#include <vector>

using SmcSensorName = std::pair<const char*, const char*>; // key, name

// The three tables in their order: GPU, drives and radios; memory, enclosure and northbridge;
// then the long table whose names carry a leading "P" as part of the text. A key keeps the name
// it is given first, so a later table never renames a key an earlier one named.
const std::vector<std::vector<SmcSensorName>>& builtInSmcSensorNames();
