#pragma once

#include "controls/TitleMenuButton.h"
#include "media/FrameRate.h"

#include <vector>

/// A titled drop-down of frame rates. The selection is kept as the row's text, and
/// turned back into a rate when asked for, so no list of rates is held beside it.
class FrameRateButton : public TitleMenuButton {
public:
    /// What a FrameRateButton is made from: a drop-down's record and the rates it offers.
    struct InitArgs : TitleMenuButton::InitArgs {
        std::vector<Zn::FrameRate> rates;
        InitArgs() = default;
        // Titled "Frame rate"; the button fits its rows.
        InitArgs(const std::vector<Zn::FrameRate>& rates, unsigned short width, unsigned short height);
    };

    static constexpr ResId kTitle = 613;

    explicit FrameRateButton(const InitArgs& args);
    FrameRateButton(const std::vector<Zn::FrameRate>& rates, unsigned short width, unsigned short height, const Palette& palette, Canvas* canvas);
    // Offers the rates of broadcast and editing.
    FrameRateButton(unsigned short width, unsigned short height, const Palette& palette, Canvas* canvas);
    const char* idstring() const override { return "FrameRateButton"; }

    // One row a rate, in the order given; the first is selected.
    void init(const std::vector<Zn::FrameRate>& rates);
    // Selects the rate's row; a rate with no row leaves the selection alone.
    void setFrameRate(Zn::FrameRate rate);
    // No rate when nothing is selected.
    Zn::FrameRate getSelectedFrameRate() const;
};
