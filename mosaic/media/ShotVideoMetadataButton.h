#pragma once

#include "controls/DropDownMenuButton.h"
#include "media/ShotVideoMetadata.h"

#include <set>
#include <vector>

/// A drop-down from which the user picks a video format. The menu has a heading for
/// each family of formats, in the families' order, and under it the family's formats
/// from the smallest height up, each with its size ("1920x1080") beside its name.
/// The choice reaches the owner through the button's value and callback, as with any
/// drop-down; rows have no callbacks of their own.
class ShotVideoMetadataButton : public DropDownMenuButton {
public:
    /// What a ShotVideoMetadataButton is made from: a drop-down's record and the formats it offers.
    struct InitArgs : DropDownMenuButton::InitArgs {
        std::set<ShotVideoMetadata> formats;
        InitArgs() = default;
        InitArgs(const std::set<ShotVideoMetadata>& formats, unsigned short width = 0, unsigned short height = 0);
    };

    // The one heading that standard definition of 525 and of 625 lines share.
    static constexpr ResId kStandardDefinitionHeading = 600;

    explicit ShotVideoMetadataButton(const InitArgs& args);
    const char* idstring() const override { return "ShotVideoMetadataButton"; }

    // Rebuilds the menu and selects its first format. `selected` is not used: a caller
    // that wants another selection calls setSelectedFormat afterwards.
    void setFormats(const std::set<ShotVideoMetadata>& formats, const ShotVideoMetadata& selected);
    // Selects the first row equal to `format`; false, with the selection kept, when none is.
    bool setSelectedFormat(const ShotVideoMetadata& format);
    // The selected format; no format when nothing is selected.
    ShotVideoMetadata getSelectedFormat() const;
    // The formats in menu order, headings left out.
    const std::vector<ShotVideoMetadata>& getFormats() const { return formats_; }

private:
    std::vector<ShotVideoMetadata> formats_;
};
