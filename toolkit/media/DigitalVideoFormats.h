#pragma once

#include "FormatUID.h"
#include "FrameRate.h"
#include "ScanMode.h"

#include <cstdint>
#include <vector>

namespace Zn {

/// The table of broadcast and common digital video formats: SD of 525 and 625
/// lines, 720p, 1080i, 1080PsF and 1080p, 2K, UHD and 4K DCI at their rates. Each
/// format has a UID that never changes, since preferences keep it.
class DigitalVideoFormats {
public:
    /// The families that formats are grouped in.
    struct FormatGroups {
        // The family of a format; menus show the families in this order.
        enum FormatGroup : std::int32_t {
            kOtherFormats = 0,
            kSD525 = 1,
            kSD625 = 2,
            kHD720 = 3,
            kHD1080 = 4,
            k2K = 5,
            kUHD = 6,
            k4KDCI = 7,
        };
    };

    /// One format of the table: its UID, family, picture size, rate, scan and name.
    struct DigitalVideoFormatInfo {
        Image::FormatUID uid;
        FormatGroups::FormatGroup group = FormatGroups::kOtherFormats;
        int width = 0;
        int height = 0;
        FrameRate frameRate = kFrameRateNone;
        Image::ScanMode scanMode = Image::kScanUnknown;
        // "1080i 50": lines, scan and, for interlaced formats, the field rate.
        const wchar_t* name = L"";
    };

    static bool isValidFormat(const Image::FormatUID& uid);
    // The format of that UID; an unknown one gives a format of no group and no size.
    static DigitalVideoFormatInfo findByUID(const Image::FormatUID& uid);
    // Every format, by UID.
    static const std::vector<DigitalVideoFormatInfo>& getFormats();
};

// The heading of a family of formats, a resource string.
LightweightString<wchar_t> getDisplayString(DigitalVideoFormats::FormatGroups::FormatGroup group);

} // namespace Zn
