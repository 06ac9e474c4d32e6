#pragma once

#include "media/ShotVideoMetadata.h"

/// The stored form of an output format, a JSON object kept in the preferences:
/// "uid" the format's UID as text, "bpc" the bits per component, "sm" the scan mode
/// and "ar" the aspect, "4:3" or "16:9", left out for any other. The frame rate is
/// not stored: the format's UID implies it.
class StoredVideoFormat {
public:
    static LightweightString<char> write(const ShotVideoMetadata& format);
    // The stored format in 'YUY2', with the table's frame rate. A missing "bpc" reads
    // as 8 and a missing "sm" as progressive, as do numbers that name no depth or
    // scan. Text that is no JSON object, or a UID the table does not have, gives no format.
    static ShotVideoMetadata read(const LightweightString<char>& text);
};
