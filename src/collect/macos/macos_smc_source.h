// The AppleSMC driver's user client: one connection per collection, key reads by name.
#pragma once

#include "collect/smc_source.h"

#include <IOKit/IOKitLib.h>

class MacosSmcSource final : public SmcSource {
public:
    MacosSmcSource() = default;
    ~MacosSmcSource() override;
    MacosSmcSource(const MacosSmcSource&) = delete;
    MacosSmcSource& operator=(const MacosSmcSource&) = delete;

    // Says why on standard output when the driver cannot be reached.
    bool open() override;
    // Two calls: the key's size and type, then its bytes.
    int readValue(std::string_view key, SMCValue& value) override;
    void close() override;

private:
    io_connect_t connection_ = IO_OBJECT_NULL;
};
