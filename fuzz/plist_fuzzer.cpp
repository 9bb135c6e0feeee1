// Fuzzes the settings and theme files through the path the program reads them by: the size and
// nesting bounds, then libplist, then the dictionary check.
#include "fuzz_input.h"
#include "prefs/plist_io.h"

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
    const auto path = FuzzInput::writeFile("settings.plist", FuzzInput::text(data, size));
    (void)PlistIo::readDictionary(QString::fromStdString(path.string()));
    return 0;
}
