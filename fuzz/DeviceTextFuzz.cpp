// Feeds arbitrary bytes to the readers of the device and drive layers: the mount
// table, a card name from sysfs and the stored output format of a device.
#include "core/Utf8.h"
#include "media/DiskScanner.h"
#include "media/MountTable.h"
#include "media/StoredVideoFormat.h"
#include "media/V4L2DeviceDriver.h"

#include <cstddef>
#include <cstdint>
#include <string>

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    const std::string bytes(reinterpret_cast<const char*>(data), size);

    DiskScanner scanner{DiskSources{}};
    for (const MediaDrive& d : scanner.volumesOf(bytes)) {
        if (d.mountPoint.empty() || d.id.isAuto() || MountTable::isPseudoFileSystem(d.fsType.view())) __builtin_trap();
        if (d.mountPoint.view().find('\0') != std::string_view::npos) __builtin_trap();
        (void)d.getUserName(true);
    }

    const LightweightString<char> name = V4L2DeviceDriver::validUtf8(bytes);
    if (toUTF8(fromUTF8(name)) != name || V4L2DeviceDriver::validUtf8(name.str()) != name) __builtin_trap();

    const LightweightString<char> text(bytes.c_str());
    const ShotVideoMetadata format = StoredVideoFormat::read(text);
    if (format.getWidth() != 0 && !(StoredVideoFormat::read(StoredVideoFormat::write(format)) == format)) __builtin_trap();
    return 0;
}
