// Feeds arbitrary bytes to the readers of media texts: a frame rate's display text,
// a format UID's text form and the stored output format. Whatever they make of it
// must read back to itself through its own text.
#include "core/Utf8.h"
#include "media/StoredVideoFormat.h"

#include <cstddef>
#include <cstdint>

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    const LightweightString<char> text(reinterpret_cast<const char*>(data), size);

    const Zn::FrameRate rate = Zn::getFrameRateFromDisplayString(fromUTF8(text));
    if (rate != Zn::kFrameRateNone && Zn::getFrameRateFromDisplayString(Zn::getDisplayString(rate)) != rate) __builtin_trap();

    const Zn::Image::FormatUID uid(text);
    if (Zn::Image::FormatUID(uid.toString()) != uid) __builtin_trap();

    const ShotVideoMetadata format = StoredVideoFormat::read(text);
    if (format.getWidth() != 0 && !(StoredVideoFormat::read(StoredVideoFormat::write(format)) == format)) __builtin_trap();
    return 0;
}
