#include "DigitalVideoFormats.h"

#include "platform/ResourceStrings.h"

using Zn::DigitalVideoFormats;
using Info = DigitalVideoFormats::DigitalVideoFormatInfo;
using Group = DigitalVideoFormats::FormatGroups;

namespace {

using namespace Zn;
using namespace Zn::Image;

constexpr ScanMode kUpper = kInterlacedUpperFieldFirst, kLower = kInterlacedLowerFieldFirst, kPsF = kProgressiveSegmentedFrame;

Info row(std::uint32_t uid, Group::FormatGroup group, int w, int h, FrameRate rate, ScanMode scan, const wchar_t* name) {
    return Info{FormatUID(uid), group, w, h, rate, scan, name};
}

// In UID order, UID n at place n - 1; a new format takes the next number at the end.
std::vector<Info> makeTable() {
    return {
        row(1, Group::kSD525, 720, 486, kFrameRate29_97, kLower, L"486i 59.94"),
        row(2, Group::kSD525, 720, 480, kFrameRate29_97, kLower, L"480i 59.94"),
        row(3, Group::kSD525, 720, 480, kFrameRate59_94, kProgressive, L"480p 59.94"),
        row(4, Group::kSD625, 720, 576, kFrameRate25, kUpper, L"576i 50"),
        row(5, Group::kSD625, 720, 576, kFrameRate25, kProgressive, L"576p 25"),
        row(6, Group::kSD625, 720, 576, kFrameRate50, kProgressive, L"576p 50"),
        row(7, Group::kHD720, 1280, 720, kFrameRate23_976, kProgressive, L"720p 23.976"),
        row(8, Group::kHD720, 1280, 720, kFrameRate24, kProgressive, L"720p 24"),
        row(9, Group::kHD720, 1280, 720, kFrameRate29_97, kProgressive, L"720p 29.97"),
        row(10, Group::kHD720, 1280, 720, kFrameRate30, kProgressive, L"720p 30"),
        row(11, Group::kHD720, 1280, 720, kFrameRate50, kProgressive, L"720p 50"),
        row(12, Group::kHD720, 1280, 720, kFrameRate59_94, kProgressive, L"720p 59.94"),
        row(13, Group::kHD720, 1280, 720, kFrameRate60, kProgressive, L"720p 60"),
        row(14, Group::kHD1080, 1920, 1080, kFrameRate25, kUpper, L"1080i 50"),
        row(15, Group::kHD1080, 1920, 1080, kFrameRate29_97, kUpper, L"1080i 59.94"),
        row(16, Group::kHD1080, 1920, 1080, kFrameRate30, kUpper, L"1080i 60"),
        row(17, Group::kHD1080, 1920, 1080, kFrameRate23_976, kPsF, L"1080PsF 23.976"),
        row(18, Group::kHD1080, 1920, 1080, kFrameRate24, kPsF, L"1080PsF 24"),
        row(19, Group::kHD1080, 1920, 1080, kFrameRate25, kPsF, L"1080PsF 25"),
        row(20, Group::kHD1080, 1920, 1080, kFrameRate29_97, kPsF, L"1080PsF 29.97"),
        row(21, Group::kHD1080, 1920, 1080, kFrameRate23_976, kProgressive, L"1080p 23.976"),
        row(22, Group::kHD1080, 1920, 1080, kFrameRate24, kProgressive, L"1080p 24"),
        row(23, Group::kHD1080, 1920, 1080, kFrameRate29_97, kProgressive, L"1080p 29.97"),
        row(24, Group::kHD1080, 1920, 1080, kFrameRate30, kProgressive, L"1080p 30"),
        row(25, Group::kHD1080, 1920, 1080, kFrameRate50, kProgressive, L"1080p 50"),
        row(26, Group::kHD1080, 1920, 1080, kFrameRate59_94, kProgressive, L"1080p 59.94"),
        row(27, Group::kHD1080, 1920, 1080, kFrameRate25, kProgressive, L"1080p 25"),
        row(28, Group::kHD720, 1280, 720, kFrameRate25, kProgressive, L"720p 25"),
        row(29, Group::kHD1080, 1920, 1080, kFrameRate60, kProgressive, L"1080p 60"),
        row(30, Group::k2K, 2048, 1080, kFrameRate23_976, kProgressive, L"2K 23.976"),
        row(31, Group::k2K, 2048, 1080, kFrameRate24, kProgressive, L"2K 24"),
        row(32, Group::k2K, 2048, 1080, kFrameRate25, kProgressive, L"2K 25"),
        row(33, Group::k2K, 2048, 1080, kFrameRate29_97, kProgressive, L"2K 29.97"),
        row(34, Group::k2K, 2048, 1080, kFrameRate30, kProgressive, L"2K 30"),
        row(35, Group::k2K, 2048, 1080, kFrameRate48, kProgressive, L"2K 48"),
        row(36, Group::k2K, 2048, 1080, kFrameRate50, kProgressive, L"2K 50"),
        row(37, Group::k2K, 2048, 1080, kFrameRate59_94, kProgressive, L"2K 59.94"),
        row(38, Group::k2K, 2048, 1080, kFrameRate60, kProgressive, L"2K 60"),
        row(39, Group::kUHD, 3840, 2160, kFrameRate23_976, kProgressive, L"UHD 23.976"),
        row(40, Group::kUHD, 3840, 2160, kFrameRate24, kProgressive, L"UHD 24"),
        row(41, Group::kUHD, 3840, 2160, kFrameRate25, kProgressive, L"UHD 25"),
        row(42, Group::kUHD, 3840, 2160, kFrameRate29_97, kProgressive, L"UHD 29.97"),
        row(43, Group::kUHD, 3840, 2160, kFrameRate30, kProgressive, L"UHD 30"),
        row(44, Group::kUHD, 3840, 2160, kFrameRate50, kProgressive, L"UHD 50"),
        row(45, Group::kUHD, 3840, 2160, kFrameRate59_94, kProgressive, L"UHD 59.94"),
        row(46, Group::kUHD, 3840, 2160, kFrameRate60, kProgressive, L"UHD 60"),
        row(47, Group::k4KDCI, 4096, 2160, kFrameRate23_976, kProgressive, L"4K DCI 23.976"),
        row(48, Group::k4KDCI, 4096, 2160, kFrameRate24, kProgressive, L"4K DCI 24"),
        row(49, Group::k4KDCI, 4096, 2160, kFrameRate25, kProgressive, L"4K DCI 25"),
        row(50, Group::k4KDCI, 4096, 2160, kFrameRate29_97, kProgressive, L"4K DCI 29.97"),
        row(51, Group::k4KDCI, 4096, 2160, kFrameRate30, kProgressive, L"4K DCI 30"),
        row(52, Group::k4KDCI, 4096, 2160, kFrameRate48, kProgressive, L"4K DCI 48"),
        row(53, Group::k4KDCI, 4096, 2160, kFrameRate50, kProgressive, L"4K DCI 50"),
        row(54, Group::k4KDCI, 4096, 2160, kFrameRate59_94, kProgressive, L"4K DCI 59.94"),
        row(55, Group::k4KDCI, 4096, 2160, kFrameRate60, kProgressive, L"4K DCI 60"),
    };
}

// The heading of each group, by group number.
constexpr ResId kGroupHeadings[] = {608, 601, 602, 603, 604, 605, 606, 607};

} // namespace

const std::vector<Info>& DigitalVideoFormats::getFormats() {
    static const std::vector<Info> table = makeTable();
    return table;
}

bool DigitalVideoFormats::isValidFormat(const Image::FormatUID& uid) {
    const std::vector<Info>& table = getFormats();
    return !uid.isNull() && uid.value() <= table.size();
}

Info DigitalVideoFormats::findByUID(const Image::FormatUID& uid) { return isValidFormat(uid) ? getFormats()[uid.value() - 1] : Info(); }

LightweightString<wchar_t> Zn::getDisplayString(DigitalVideoFormats::FormatGroups::FormatGroup group) {
    const auto g = static_cast<std::size_t>(group);
    return resourceStrW(g < std::size(kGroupHeadings) ? kGroupHeadings[g] : kGroupHeadings[0]);
}
