#include "SpaceDivider.h"

#include "controls/TextLabel.h"
#include "glob/CanvasStack.h"
#include "glob/UpdateDeferrer.h"
#include "glob/destroyAfterCall.h"
#include "glob/makeTopLevel.h"
#include "platform/CommandRegistrar.h"

#include <algorithm>
#include <cmath>

namespace {

float clampPos(float pos) { return std::isnan(pos) ? 0.5f : std::clamp(pos, 0.0f, 1.0f); }

Glob* label(const wchar_t* text) {
    TextLabel::InitArgs args(UIString(text), 100, 100);
    args.palette = UifStd::instance().getColourScheme();
    auto* l = new TextLabel(args);
    l->setAlignment(Glib::kAlignCentreH);
    return l;
}

// A development panel: a divider side by side whose right side is divided again, stacked.
void openTestPanel() {
    StandardPanel::InitArgs args(600, 400);
    auto* panel = makeTopLevel<StandardPanel>(args, Glob::Centre(0, 0));
    panel->setBorder(StandardPanel::getDefaultBorder());
    panel->addStandardWidgets(StandardPanel::kCloseBox | StandardPanel::kTitleBar);
    panel->setTitle(UIString(L"Space Divider Test"), UifStd::instance().getTitleFont(), kNoRedraw);
    const BoxInt u = panel->getUserArea();
    SpaceDivider::InitArgs inner(200, 200, Splitter::kAboveEachOther, label(L"Lower"), label(L"Upper"), 0.5f);
    inner.palette = panel->getPalette();
    SpaceDivider::InitArgs outer(static_cast<unsigned short>(u.width()), static_cast<unsigned short>(u.height()), Splitter::kSideBySide,
                                 label(L"Left"), new SpaceDivider(inner), 0.4f);
    panel->createWidget<SpaceDivider>(outer, Glob::UserBottomLeft(0, 0))->setName("spaceDivider");
    panel->redraw();
}

const CommandRegistrar command("Space Divider Test", [](const Zn::Ptr<iObject>&) { openTestPanel(); });

} // namespace

SpaceDivider::SpaceDivider(const InitArgs& args)
    : OccludedChildWidget(args),
      orientation_(args.orientation == Splitter::kAboveEachOther ? Splitter::kAboveEachOther : Splitter::kSideBySide), widgets_{args.widgets[0],
                                                                                                                                args.widgets[1]},
      splitPos_(clampPos(args.splitPos)) {
    createSplitter();
    layout();
}

XY<int> SpaceDivider::make(int alongAxis, int acrossAxis) const {
    return orientation_ == Splitter::kSideBySide ? XY<int>(alongAxis, acrossAxis) : XY<int>(acrossAxis, alongAxis);
}

void SpaceDivider::createSplitter() {
    const BoxInt u = getUserArea();
    if (widgets_[kFirst]) addChild(widgets_[kFirst], UserBottomLeft(0, 0));
    if (!widgets_[kFirst] || !widgets_[kSecond]) {
        if (widgets_[kSecond]) addChild(widgets_[kSecond], UserBottomLeft(0, 0));
        return;
    }
    const auto length = static_cast<unsigned short>(std::max(0, across(XY<int>(u.width(), u.height()))));
    Splitter::InitArgs s(orientation_, length);
    splitter_ = createWidget<Splitter>(s, orientation_ == Splitter::kSideBySide ? RightOf(0, widgets_[kFirst]) : Above(0, widgets_[kFirst]));
    splitter_->setName("spaceDividerSplitter");
    addChild(widgets_[kSecond], orientation_ == Splitter::kSideBySide ? RightOf(0, splitter_) : Above(0, splitter_));
}

XY<int> SpaceDivider::calcWidgetSize(eWidgetId id) const {
    const BoxInt u = getUserArea();
    return calcWidgetSize(XY<int>(u.width(), u.height()), id);
}

XY<int> SpaceDivider::calcWidgetSize(const XY<int>& total, eWidgetId id) const {
    const int t = Splitter::calcThickness();
    const int half = t / 2;
    const int length = along(total);
    // Rounded, not cut: a position read back from the sizes gives the same sizes again.
    const int middle = static_cast<int>(std::lround(static_cast<double>(length) * splitPos_));
    const int first = std::clamp(middle - half, 0, std::max(0, length - t));
    const int alongAxis = id == kFirst ? first : std::max(0, length - (first + t));
    return make(alongAxis, across(total));
}

bool SpaceDivider::bothShowing() const {
    return widgets_[kFirst] && widgets_[kSecond] && splitter_ && widgets_[kFirst]->isVisible() && widgets_[kSecond]->isVisible();
}

void SpaceDivider::fillWith(Glob* only) {
    const BoxInt u = getUserArea();
    only->resize(u.width(), u.height());
    setWidgetPos(only, BottomLeft(u.x1, u.y1));
}

void SpaceDivider::layout() {
    if (!bothShowing()) {
        for (Glob* w : widgets_)
            if (w && w->isVisible()) fillWith(w);
        return;
    }
    const BoxInt u = getUserArea();
    const XY<int> total(u.width(), u.height());
    const int t = Splitter::calcThickness();
    const int length = along(total);
    Glob* a = widgets_[kFirst];
    Glob* b = widgets_[kSecond];
    // A child's minimum wins over the split; when both cannot be met the first's does.
    const int minA = along(a->getMinSize());
    const int minB = along(b->getMinSize());
    const int wanted = along(calcWidgetSize(total, kFirst));
    int first = std::max(minA, std::min(wanted, length - t - minB));
    a->resize(make(first, across(total)).x, make(first, across(total)).y);
    first = along(a->size());
    const int second = std::max(0, length - (first + t));
    b->resize(make(second, across(total)).x, make(second, across(total)).y);
    const XY<int> start(u.x1, u.y1);
    setWidgetPos(a, BottomLeft(start));
    setWidgetPos(splitter_, BottomLeft(start + make(first, 0)));
    setWidgetPos(b, BottomLeft(start + make(first + t, 0)));
    const XY<int> bar = Splitter::calcDimensions(orientation_, static_cast<unsigned short>(std::max(0, across(total))));
    splitter_->resize(bar.x, bar.y);
    // What the children accepted becomes the split, when it is not what was asked.
    const int half = t / 2;
    if (first != wanted && length > 0) splitPos_ = clampPos(static_cast<float>(first + half) / static_cast<float>(length));
}

void SpaceDivider::resize(double width, double height) {
    OccludedChildWidget::resize(width, height);
    layout();
}

void SpaceDivider::setSplitPos(float pos) {
    splitPos_ = clampPos(pos);
    resize(width(), height());
}

void SpaceDivider::setSplitPosFromWidget(eWidgetId id) {
    Glob* w = widgets_[id];
    const BoxInt u = getUserArea();
    const int length = along(XY<int>(u.width(), u.height()));
    if (!w || length <= 0) return;
    const int t = Splitter::calcThickness();
    const int first = id == kFirst ? along(w->size()) : length - t - along(w->size());
    const int half = t / 2;
    splitPos_ = clampPos(static_cast<float>(first + half) / static_cast<float>(length));
}

void SpaceDivider::setWidgetVisible(eWidgetId id, bool visible) {
    Glob* w = widgets_[id];
    if (!w || w->isVisible() == visible) return;
    if (visible) setSplitPosFromWidget(id);
    w->setVisible(visible);
    if (splitter_) splitter_->setVisible(visible);
    resize(width(), height());
    redraw();
}

void SpaceDivider::destroyWidget(eWidgetId id, eRedrawFlag flag) {
    destroyAfterCall(widgets_[id]);
    widgets_[id] = nullptr;
    destroyAfterCall(splitter_);
    splitter_ = nullptr;
    if (flag == kRedraw) {
        resize(width(), height());
        redraw();
    }
}

void SpaceDivider::setPalette(const Palette& p) {
    OccludedChildWidget::setPalette(p);
    if (splitter_) splitter_->setPalette(p);
}

int SpaceDivider::handleMessageEvent(const LightweightString<char>& message, Glob* sender) {
    if (message != Splitter::kMoveMsg || !splitter_ || sender != splitter_) return OccludedChildWidget::handleMessageEvent(message, sender);
    const Glib::UpdateDeferrer oneDraw;
    const BoxInt u = getUserArea();
    const int length = along(XY<int>(u.width(), u.height()));
    if (length <= 0) return 1;
    const int half = Splitter::calcThickness() / 2;
    // The mouse stands for the splitter's middle, which stays half its thickness
    // inside either end, so the position stays within 0.0 to 1.0.
    const int mouse = along(screenXYToGlobXY(glib_getMousePos()) - XY<int>(u.x1, u.y1));
    const int middle = std::clamp(mouse, half, std::max(half, length - half));
    splitPos_ = clampPos(static_cast<float>(middle) / static_cast<float>(length));
    layout();
    reshapeAndDraw(XY<int>(kUnset, kUnset));
    return 1;
}
