// Source of System Management Controller values: open, read keys by name, close.
#pragma once

#include "collect/smc_value.h"

#include <string_view>

// Every collection opens its own connection and closes it at its end; nothing outlives one.
// A machine without an SMC is normal where the platform has none: open() then says no, and the
// sensors come from the platform's other sources.
class SmcSource {
public:
    virtual ~SmcSource() = default;
    virtual bool open() = 0;
    // The key's value, zero-filled first; a key that does not exist reads as size 0. Returns
    // the platform's result code, 0 on success.
    virtual int readValue(std::string_view key, SMCValue& value) = 0;
    virtual void close() = 0;
};
