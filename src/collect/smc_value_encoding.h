// Value records built from readings, for sources that stand in for an SMC.
#pragma once

#include "collect/smc_value.h"

#include <cstdint>
#include <string_view>

// The SMC's own result for a key it does not hold.
inline constexpr int kSmcKeyNotFound = 0x84;

// key copied in (four characters at most), everything else zero, as before any read.
SMCValue emptySmcValue(std::string_view key);

// "sp78": signed 7.8 fixed point from millidegrees Celsius, rounded down to 1/256 degree. A
// reading outside -128 to 127.996 degrees (a sensor reporting a fault often gives such) is held
// at the nearest end rather than wrapped, which would turn a glowing-hot fault into a cold one.
SMCValue sp78Value(std::string_view key, std::int64_t millidegrees);

// A fan speed in revolutions per minute as "fpe2" (unsigned 14.2 fixed point, whose first byte
// must stay below 0x80 to read as positive), or as "flt " beyond its 8191 rpm, as some SMCs hold
// their speeds; negative readings count as 0.
SMCValue fanSpeedValue(std::string_view key, std::int64_t rpm);

// "ui8 ", held at 255.
SMCValue ui8Value(std::string_view key, std::uint64_t number);

// Text bytes as they stand, at most 32, of the given type; size 0 for no text.
SMCValue textValue(std::string_view key, std::string_view text, std::string_view type = "ch8*");
