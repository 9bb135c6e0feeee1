// Talks to the AppleSMC user client through IOConnectCallStructMethod with 80-byte call records.
#include "collect/macos/macos_smc_source.h"

#include "collect/smc_decoding.h"

#include <mach/mach.h>

#include <cstdio>

namespace {
// The user client's method that exchanges one call record.
constexpr uint32_t kSmcHandleYpcEvent = 2;

// One exchange of call records with the driver; the kernel's result code.
kern_return_t callDriver(io_connect_t connection, const SMCCallRecord& input, SMCCallRecord& output)
{
    const auto in = Smc::encodeCallRecord(input);
    std::array<std::uint8_t, kSmcCallRecordSize> out{};
    size_t outSize = out.size();
    const kern_return_t result =
        IOConnectCallStructMethod(connection, kSmcHandleYpcEvent, in.data(), in.size(), out.data(), &outSize);
    if (result == kIOReturnSuccess)
        output = Smc::decodeCallRecord(out);
    return result;
}
} // namespace

MacosSmcSource::~MacosSmcSource()
{
    close();
}

bool MacosSmcSource::open()
{
    close();
    // SIGCHLD is left alone: ignoring it would let the kernel reap the child processes that
    // other collectors wait for.
    mach_port_t mainPort = MACH_PORT_NULL;
#pragma clang diagnostic push
#pragma clang diagnostic ignored "-Wdeprecated-declarations"
    IOMasterPort(MACH_PORT_NULL, &mainPort);
#pragma clang diagnostic pop
    io_iterator_t iterator = IO_OBJECT_NULL;
    kern_return_t result = IOServiceGetMatchingServices(mainPort, IOServiceMatching("AppleSMC"), &iterator);
    if (result != kIOReturnSuccess) {
        std::printf("Error: IOServiceGetMatchingServices() = %08x\n", result);
        return false;
    }
    const io_object_t device = IOIteratorNext(iterator);
    IOObjectRelease(iterator);
    if (device == IO_OBJECT_NULL) {
        std::printf("Error: no SMC found\n");
        return false;
    }
    result = IOServiceOpen(device, mach_task_self(), 0, &connection_);
    IOObjectRelease(device);
    if (result != kIOReturnSuccess) {
        std::printf("Error: IOServiceOpen() = %08x\n", result);
        connection_ = IO_OBJECT_NULL;
        return false;
    }
    return true;
}

int MacosSmcSource::readValue(std::string_view key, SMCValue& value)
{
    value = SMCValue{};
    const std::uint32_t code = Smc::keyFromText(key);
    value.key = Smc::fieldFromKey(code);
    if (connection_ == IO_OBJECT_NULL)
        return kIOReturnNotOpen;
    SMCCallRecord input;
    SMCCallRecord output;
    input.key = code;
    input.command = kSmcReadKeyInfo;
    kern_return_t result = callDriver(connection_, input, output);
    if (result != kIOReturnSuccess)
        return result;
    value.dataSize = output.dataSize;
    value.dataType = Smc::fieldFromKey(output.dataType);
    // The driver's own result byte is not looked at: a missing key shows as size 0.
    input.dataSize = value.dataSize;
    input.command = kSmcReadBytes;
    output = SMCCallRecord{};
    result = callDriver(connection_, input, output);
    if (result != kIOReturnSuccess)
        return result;
    value.bytes = output.bytes;
    return kIOReturnSuccess;
}

void MacosSmcSource::close()
{
    if (connection_ != IO_OBJECT_NULL)
        IOServiceClose(connection_);
    connection_ = IO_OBJECT_NULL;
}
