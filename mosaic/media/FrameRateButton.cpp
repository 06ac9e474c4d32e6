#include "FrameRateButton.h"

namespace {

FrameRateButton::InitArgs argsOf(const std::vector<Zn::FrameRate>& rates, unsigned short width, unsigned short height, const Palette& palette,
                                 Canvas* canvas) {
    FrameRateButton::InitArgs a(rates, width, height);
    a.palette = palette;
    a.canvas = canvas;
    a.isChild = canvas != nullptr;
    return a;
}

std::vector<Zn::FrameRate> videoRates() {
    std::vector<Zn::FrameRate> rates;
    Zn::getFrameRates(Zn::FrameRateGroups::kVideoRates, rates);
    return rates;
}

} // namespace

FrameRateButton::InitArgs::InitArgs(const std::vector<Zn::FrameRate>& r, unsigned short width, unsigned short height)
    : TitleMenuButton::InitArgs(UIString(kTitle), {}, 0, width, height), rates(r) {}

FrameRateButton::FrameRateButton(const InitArgs& args) : TitleMenuButton(args) { init(args.rates); }

FrameRateButton::FrameRateButton(const std::vector<Zn::FrameRate>& rates, unsigned short width, unsigned short height, const Palette& palette,
                                 Canvas* canvas)
    : FrameRateButton(argsOf(rates, width, height, palette, canvas)) {}

FrameRateButton::FrameRateButton(unsigned short width, unsigned short height, const Palette& palette, Canvas* canvas)
    : FrameRateButton(videoRates(), width, height, palette, canvas) {}

void FrameRateButton::init(const std::vector<Zn::FrameRate>& rates) {
    std::vector<MenuItem> rows;
    rows.reserve(rates.size());
    for (Zn::FrameRate rate : rates)
        rows.emplace_back(UIString(Zn::getDisplayString(rate)), WidgetCallback(), getPalette().text(kTextNormal), getCol());
    setStrings(rows, MenuItemIndex());
}

void FrameRateButton::setFrameRate(Zn::FrameRate rate) { setSelectedItem(MenuItemIndex(Zn::getDisplayString(rate))); }

Zn::FrameRate FrameRateButton::getSelectedFrameRate() const { return Zn::getFrameRateFromDisplayString(getSelectedItemNameW()); }
