#pragma once

#include "core/LightweightString.h"

namespace Zn {

/// Makes file paths out of names that come from users, clip names or log titles,
/// none of which can be trusted to be a valid file name.
class FilespecUtils {
public:
    // The path of a file named `name` with `extension` (with or without its dot)
    // in `folder`. Characters that cannot stand in a file name here (the
    // separator, NUL and control characters) become `replacement`, as do leading
    // dots, so that the name can neither climb out of the folder nor hide. An
    // empty name becomes `replacement`; the name is cut so that the whole file
    // name stays within 255 bytes of UTF-8. Unless `overwrite` is set, a name that
    // is taken gets a number ("log_2.txt") so that an earlier file survives. A
    // replacement that is not allowed itself is taken as '_'. An empty folder
    // gives a name alone.
    static LightweightString<wchar_t> makeValidFilespec(const LightweightString<wchar_t>& folder, const LightweightString<wchar_t>& name,
                                                        const LightweightString<wchar_t>& extension, bool overwrite, char replacement);
    // The same with the rules of NTFS as well, for files that may be copied to
    // Windows machines: none of <>:"\|?*, no trailing dot or space, and none of
    // the device names (CON, NUL, COM1 ...), which get `replacement` in front.
    static LightweightString<wchar_t> makeValidFilespecNTFS(const LightweightString<wchar_t>& folder, const LightweightString<wchar_t>& name,
                                                            const LightweightString<wchar_t>& extension, bool overwrite, char replacement);

    // Just the file name, cleaned as above, without a folder and without looking at the disk.
    static LightweightString<wchar_t> makeValidFilename(const LightweightString<wchar_t>& name, const LightweightString<wchar_t>& extension,
                                                        char replacement, bool ntfs);

    // The longest file name, in bytes of UTF-8, that Linux file systems take.
    static constexpr std::size_t kMaxNameBytes = 255;
};

} // namespace Zn
