// Source of System Management Controller values: open, read keys by name, close.
#pragma once

#include "collect/sensor_dat.h"
#include "collect/smc_value.h"

#include <QList>

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

    // Between open() and close(): whether the keys of the SMC's sensor tables can be answered
    // at all. Where no SMC is present they are not offered, so that a hundred keys that can
    // never answer are neither probed nor remembered as failed.
    virtual bool servesSmcKeys() { return true; }
    // Between open() and close(): temperature inputs the platform names itself, beyond the SMC's
    // tables, each under a key that readValue answers; names unique among them.
    virtual QList<TempSensorEntry> namedTemperatures() { return {}; }
};
