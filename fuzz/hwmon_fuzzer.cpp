// Fuzzes the sensor reader with one hwmon chip whose name, labels and values are the input.
#include "collect/linux/linux_sensor_source.h"
#include "collect/linux/sys_root.h"
#include "collect/linux/sysfs_attribute.h"
#include "fuzz_input.h"

#include <array>

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
    std::string_view text = FuzzInput::text(data, size);
    // The whole input is also read as a bare attribute, as the seeds from real trees are.
    const auto whole = FuzzInput::writeFile("sys/class/hwmon/hwmon1/temp1_input", text);
    (void)readAttributeInteger(whole);
    (void)readAttributeUnsigned(whole);
    (void)readAttributeText(whole);
    // Line by line, one line a file.
    constexpr std::array files{"name", "temp1_input", "temp1_label", "temp1_max", "fan1_input", "fan1_label"};
    for (const char* file : files) {
        const std::size_t end = std::min(text.find('\n'), text.size());
        FuzzInput::writeFile(std::string("sys/class/hwmon/hwmon0/") + file, text.substr(0, end));
        text.remove_prefix(std::min(end + 1, text.size()));
    }
    LinuxSensorSource source{SysRoot(FuzzInput::scratchFolder())};
    (void)source.readSensors(SensorKinds::All);
    return 0;
}
