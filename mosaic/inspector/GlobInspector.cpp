#include "GlobInspector.h"

#include "InfoWidget.h"
#include "draw/CanvasRenderer.h"
#include "draw/UifStd.h"
#include "glob/GlobManager.h"
#include "glob/InputDispatcher.h"
#include "glob/makeTopLevel.h"
#include "platform/CommandRegistrar.h"

#include <algorithm>
#include <cstdlib>
#include <string>

namespace {
constexpr int kFurniture = StandardPanel::kTitleBar | StandardPanel::kCloseBox;
constexpr int kWidthInRows = 14;
// Where the panel comes up from the mouse: its hot spot below and left of it.
constexpr XY<int> kOpenOffset{-70, -100};
constexpr int kHotSpotMark = 10;

const CommandRegistrar command(
    GlobInspector::kTitle, [](const Zn::Ptr<iObject>&) { GlobInspector::create(); }, GlobInspector::kCommandFlags, GlobInspector::kCommandGroup);

Border inspectorBorder() { return Border(Border::kMenuBorder, 0, 15); }

int chainLength(Glob* glob) {
    int n = 0;
    for (Glob* g = glob; g; g = g->parent()) ++n;
    return std::max(1, n);
}
} // namespace

GlobInspector::GlobInspector(const InitArgs& args) : MessageBase(args) {
    setBorder(inspectorBorder());
    addStandardWidgets(kFurniture);
    setTitle(UIString(LightweightString<wchar_t>(L"Glob Inspector")), UifStd::instance().getTitleFont(), kNoRedraw);
    setName(kTitle);
    setInterest(Event::kTimer);
}

GlobInspector* GlobInspector::create() {
    const XY<int> mouse = GlobManager::instance().input().mousePos();
    const XY<int> size = calcSizeFor(nullptr);
    InitArgs args(static_cast<unsigned short>(size.x), static_cast<unsigned short>(size.y));
    return makeTopLevel<GlobInspector>(args, Glob::BottomLeft(mouse + kOpenOffset));
}

XY<int> GlobInspector::calcSizeFor(Glob* glob) {
    const UifStd& u = UifStd::instance();
    const XY<int> inner(kWidthInRows * u.getRowHeight(), chainLength(glob) * (InfoWidget::calcHeight() + u.getRowGap()));
    return calcPanelSize(inner, kFurniture, inspectorBorder());
}

void GlobInspector::clearCards() {
    for (InfoWidget* card : cards_) {
        Glob* g = card;
        removeWidget(g, true);
    }
    cards_.clear();
}

void GlobInspector::setTarget(Glob* glob) {
    target_ = GlobHandle<Glob>(glob);
    Drawable::disableRedraws();
    clearCards();
    InfoWidget* previous = nullptr;
    for (Glob* g = target_.get(); g; g = g->parent()) {
        InfoWidget::InitArgs args(0, static_cast<unsigned short>(InfoWidget::calcHeight()), g);
        const WidgetPosition where = previous ? Glob::Below(UifStd::instance().getRowGap(), previous) : Glob::UserTopLeft(0, 0);
        previous = createWidget<InfoWidget>(args, where);
        previous->setName(LightweightString<char>("infoWidget") + LightweightString<char>(std::to_string(cards_.size()).c_str()));
        cards_.push_back(previous);
    }
    Drawable::enableRedraws();
    redraw();
}

void GlobInspector::pickTarget() {
    Glob* picked = GlobManager::instance().globAt(screenPos() + getHotSpot(), this);
    const XY<int> size = calcSizeFor(picked);
    const int top = getY() + height();
    resize(size.x, size.y);
    setupRootPos({getX(), top - height()});
    setTarget(picked);
    reshapeAndDraw({kUnset, kUnset});
}

bool GlobInspector::targetDied() const { return target_.stamp().valid() && !target_.valid(); }

int GlobInspector::handleMouseEvent(const Event& e) {
    if (!mouse_chord_event(e)) return MessageBase::handleMouseEvent(e);
    if (mouse_down_event(e)) pickTarget();
    return 1;
}

int GlobInspector::handleTimerEvent() {
    if (!targetDied()) return 0;
    setTarget(nullptr);
    const XY<int> size = calcSizeFor(nullptr);
    const int top = getY() + height();
    resize(size.x, size.y);
    setupRootPos({getX(), top - height()});
    reshapeAndDraw({kUnset, kUnset});
    return 1;
}

void GlobInspector::drawBackground() {
    MessageBase::drawBackground();
    CanvasRenderer r(canvas());
    const Colour mark(1.0, 0.8, 0.0, true);
    for (int i = 0; i < kHotSpotMark; ++i) r.render(Glib::RectDescription(BoxInt(0, i, kHotSpotMark - i, i + 1), mark));
}

void GlobInspector::drawWidgets() {
    // The panel is fitted again at the next tick; here the dead cards only go unpainted.
    if (targetDied()) clearCards();
    MessageBase::drawWidgets();
}

bool GlobInspector::handleBorderChangeRequest(Glob* target, const MenuData::Change& change) {
    auto* panel = dynamic_cast<StandardPanel*>(target);
    if (!is_good_glob_ptr(target) || !panel) return false;
    const Border old = panel->getBorder();
    // A style shows only on a border with some width: a panel without one gets the usual width.
    const unsigned short size = old.size() ? old.size() : getDefaultBorder().size();
    panel->setBorder(Border(Border::typeFromInt(change.index), size, old.sides() ? old.sides() : 15));
    panel->reshapeAndDraw({kUnset, kUnset});
    return true;
}

bool GlobInspector::handleShadowChangeRequest(Glob* target, const MenuData::Change& change) {
    if (!is_good_glob_ptr(target)) return false;
    if (change.on)
        target->addShadow();
    else
        target->removeSurround();
    target->redraw();
    return true;
}

bool GlobInspector::handleWidgetChangeRequest(Glob* target, const MenuData::Change& change) {
    auto* panel = dynamic_cast<StandardPanel*>(target);
    if (!is_good_glob_ptr(target) || !panel) return false;
    const int bit = static_cast<int>(std::strtol(change.message.c_str(), nullptr, 10));
    if (*standardWidgetName(bit) == '\0') return false;
    if (change.on)
        panel->addStandardWidgets(bit);
    else
        panel->removeStandardWidgets(bit, true);
    panel->reshapeAndDraw({kUnset, kUnset});
    return true;
}

bool GlobInspector::handleVisChangeRequest(Glob* target, const MenuData::Change& change) {
    if (!is_good_glob_ptr(target)) return false;
    target->setVisible(change.on);
    if (Glob* p = target->parent())
        p->redraw();
    else
        GlobManager::instance().screenChanged();
    return true;
}
