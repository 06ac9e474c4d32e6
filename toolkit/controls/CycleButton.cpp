#include "CycleButton.h"

namespace {
Button::InitArgs buttonArgs(const CycleButton::InitArgs& a) {
    Button::InitArgs b;
    static_cast<GlobCreationInfo&>(b) = a;
    b.callback = a.callback;
    return b;
}
} // namespace

CycleButton::CycleButton(const InitArgs& args) : Button(buttonArgs(args)), labels_(args.labels) { setPickState(args.state, kNoRedraw); }

void CycleButton::setPickStrings(const std::vector<UIString>& labels, eRedrawFlag flag) {
    labels_ = labels;
    setPickState(state_, flag);
}

void CycleButton::setPickState(unsigned short state, eRedrawFlag flag) {
    state_ = labels_.empty() ? 0 : std::min<unsigned short>(state, static_cast<unsigned short>(labels_.size() - 1));
    showState(flag);
}

void CycleButton::showState(eRedrawFlag flag) { setLabel(labels_.empty() ? UIString() : labels_[state_], flag); }

void CycleButton::step(int by) {
    if (labels_.empty()) return;
    int n = static_cast<int>(labels_.size());
    state_ = static_cast<unsigned short>(((state_ + by) % n + n) % n);
    showState(kRedraw);
    Button::clicked();
}

void CycleButton::clicked() {
    step((clickModifiers() & Modifiers::Shift) ? -1 : 1);
}

int CycleButton::handleKey(int key) {
    if (key == Keys::Up) return step(-1), 1;
    if (key == Keys::Down) return step(1), 1;
    return 0;
}
