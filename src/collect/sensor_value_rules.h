// How the temperature and fan collectors read SMC values: acceptance, fan keys and fan names.
#pragma once

#include "collect/smc_value.h"

#include <QString>

#include <cstdint>
#include <optional>

// At most this many fans are listed: one per index character "0" to "9", "A" to "Z".
inline constexpr int kMaxFans = 36;

// Whole degrees of a temperature read, or none when it is not to be kept: the read failed or
// gave nothing, the first byte is negative as a signed number, or the value is below 1 degree.
// Every key is taken as signed 7.8 fixed point whatever its type says; the fraction is dropped.
std::optional<std::int64_t> acceptedTemperature(int readResult, const SMCValue& value);

// The index character of fan i (0 <= i < kMaxFans).
char fanIndexCharacter(int index);
// "F" + the fan's index character + suffix: fanKey(10, "Ac") is "FAAc".
QString fanKey(int index, const char* suffix);

// The number of fans: the last byte of the value alone, as the SMC's decimal reads go.
std::uint32_t fanCount(const SMCValue& value);

// The fan's name from its identification value: its bytes in order, keeping only those that are
// at least 33 as signed numbers (so blanks, control bytes and bytes of 128 and more go, and two
// words come out joined); "(Untitled Fan #n)" with n = index + 1 when nothing is left.
QString cleanedFanName(const SMCValue& value, int index);
