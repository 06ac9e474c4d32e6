#include "CycleButton.h"

#include "draw/CanvasRenderer.h"
#include "image/IconCache.h"

#include <algorithm>

namespace {
Button::InitArgs buttonArgs(const CycleButton::InitArgs& a) {
    // The creation record's part of the cycle button's record, and its callback.
    const GlobCreationInfo& info = a;
    Button::InitArgs b;
    static_cast<GlobCreationInfo&>(b) = info;
    b.callback = a.callback;
    return b;
}
} // namespace

CycleButton::CycleButton(const InitArgs& args) : Button(buttonArgs(args)), labels_(args.labels) { setPickState(args.state, kNoRedraw); }

void CycleButton::setPickStrings(const std::vector<UIString>& labels, eRedrawFlag flag) {
    labels_ = labels;
    setPickState(state_, flag);
}

void CycleButton::setPickIcons(const std::vector<LightweightString<wchar_t>>& paths, eRedrawFlag flag) {
    icons_.clear();
    for (const auto& path : paths) icons_.push_back(IconCache::instance().get(path));
    setPickState(state_, flag);
}

void CycleButton::setPickState(unsigned short state, eRedrawFlag flag) {
    std::size_t n = numStates();
    state_ = n == 0 ? 0 : static_cast<unsigned short>(std::min<std::size_t>(state, n - 1));
    showState(flag);
}

Zn::Ptr<iHostImage> CycleButton::currentIcon() const { return state_ < icons_.size() ? icons_[state_] : Zn::Ptr<iHostImage>(); }

// The label is kept off the face while an icon stands for the state.
void CycleButton::showState(eRedrawFlag flag) { setLabel(state_ < labels_.size() && !currentIcon() ? labels_[state_] : UIString(), flag); }

void CycleButton::drawBackground() {
    Button::drawBackground();
    Zn::Ptr<iHostImage> icon = currentIcon();
    if (!icon) return;
    int margin = std::max(2, height() / 8);
    BoxInt box(margin, margin, width() - margin, height() - margin);
    CanvasRenderer(canvas()).render(Glib::ImageDescription(icon, icon->fittedInto(box), isActive() ? 1.0 : 0.4));
}

void CycleButton::step(int by) {
    if (numStates() == 0) return;
    int n = static_cast<int>(numStates());
    state_ = static_cast<unsigned short>(((state_ + by) % n + n) % n);
    showState(kRedraw);
    Button::clicked();
}

void CycleButton::clicked() { step((clickModifiers() & Modifiers::Shift) ? -1 : 1); }

int CycleButton::handleKey(int key) {
    key = Keys::plain(key);
    if (key == Keys::Up) return step(-1), 1;
    if (key == Keys::Down) return step(1), 1;
    return 0;
}
