#include "ShotVideoMetadataButton.h"

#include "core/WStringFromInteger.h"
#include "platform/ResourceStrings.h"

#include <algorithm>
#include <map>

using FormatGroup = Zn::DigitalVideoFormats::FormatGroups::FormatGroup;

ShotVideoMetadataButton::InitArgs::InitArgs(const std::set<ShotVideoMetadata>& f, unsigned short width, unsigned short height) : formats(f) {
    this->width = width;
    this->height = height;
}

ShotVideoMetadataButton::ShotVideoMetadataButton(const InitArgs& args) : DropDownMenuButton(args) { setFormats(args.formats, ShotVideoMetadata()); }

void ShotVideoMetadataButton::setFormats(const std::set<ShotVideoMetadata>& formats, const ShotVideoMetadata&) {
    formats_.clear();
    std::map<FormatGroup, std::vector<ShotVideoMetadata>> groups;
    for (const ShotVideoMetadata& f : formats) groups[f.getVideoFormatInfo().group].push_back(f);

    const Palette& palette = getPalette();
    std::vector<MenuItem> rows;
    for (auto& [group, members] : groups) {
        const bool standardDefinition =
            group == Zn::DigitalVideoFormats::FormatGroups::kSD525 || group == Zn::DigitalVideoFormats::FormatGroups::kSD625;
        const UIString heading(standardDefinition ? resourceStrW(kStandardDefinitionHeading) : Zn::getDisplayString(group));
        rows.emplace_back(heading, WidgetCallback(), palette.subheadingText(), kMenuItemHeading);
        std::stable_sort(members.begin(), members.end(),
                         [](const ShotVideoMetadata& a, const ShotVideoMetadata& b) { return a.getHeight() < b.getHeight(); });
        for (const ShotVideoMetadata& f : members) {
            MenuItem row(UIString(f.getDisplayString()), WidgetCallback(), palette.text(kTextNormal), kMenuItemSelectable);
            row.setSecondText(UIString(Zn::WStringFromInteger(f.getWidth()) + L"x" + Zn::WStringFromInteger(f.getHeight())));
            rows.push_back(row);
            formats_.push_back(f);
        }
    }
    setStrings(rows, MenuItemIndex());
}

bool ShotVideoMetadataButton::setSelectedFormat(const ShotVideoMetadata& format) {
    // Index 0xFFFF would pick by name.
    for (unsigned short i = 0; i < formats_.size() && i < MenuItemIndex::kByName; ++i)
        if (formats_[i] == format) {
            setSelectedItem(MenuItemIndex(i));
            return true;
        }
    return false;
}

ShotVideoMetadata ShotVideoMetadataButton::getSelectedFormat() const {
    const int i = getSelectedItem();
    return i >= 0 && i < static_cast<int>(formats_.size()) ? formats_[i] : ShotVideoMetadata();
}
