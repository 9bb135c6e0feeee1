// Fuzzes the readers of other programs' VNC hosts: Remmina profiles, TigerVNC's history and
// .vncloc property lists.
#include "fuzz_input.h"
#include "net/vnc_host_importers.h"

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
    const QString text = QString::fromUtf8(reinterpret_cast<const char*>(data), static_cast<qsizetype>(size));
    (void)GeneralFunctions::parseRemminaProfile(text);
    (void)GeneralFunctions::parseTigerVncHistory(text);
    const auto file = FuzzInput::writeFile("vncloc/host.vncloc", FuzzInput::text(data, size));
    (void)GeneralFunctions::importScreenShareFileFromAs(QString::fromStdString(file.parent_path().string()));
    return 0;
}
