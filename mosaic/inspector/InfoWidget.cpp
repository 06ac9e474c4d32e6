#include "InfoWidget.h"

#include "SelectionRectangle.h"
#include "draw/CanvasRenderer.h"
#include "draw/UifStd.h"

#include <array>
#include <cstdlib>
#include <string>

namespace {
using Line = std::pair<LightweightString<wchar_t>, LightweightString<wchar_t>>;

LightweightString<wchar_t> num(int n) { return LightweightString<wchar_t>(std::to_wstring(n).c_str()); }

LightweightString<wchar_t> wide(const char* s) {
    LightweightString<wchar_t> out;
    for (const char* p = s; *p; ++p) out += static_cast<wchar_t>(*p);
    return out;
}

const std::array<int, 5> kFurnitureBits = {StandardPanel::kTitleBar, StandardPanel::kCloseBox, StandardPanel::kPinButton, StandardPanel::kCogsButton,
                                           StandardPanel::kDoItButton};
const std::array<const wchar_t*, 7> kBorderNames = {L"NoBorder",          L"MenuBorder",          L"DropMenuBorder", L"CurvedPanelBorder",
                                                    L"SquarePanelBorder", L"DarkenedRoundedRect", L"LineBorder"};
} // namespace

GlobInspector::InfoWidget::InfoWidget(const InitArgs& args) : StandardPanel(args), target_(args.target) {}

GlobInspector::InfoWidget::~InfoWidget() { selection_.deleteGlob(); }

int GlobInspector::InfoWidget::calcHeight() { return 3 * UifStd::instance().getRowHeight(); }

std::vector<Line> GlobInspector::InfoWidget::lines() const {
    Glob* t = target_.get();
    if (!t) return {{L"Position ", {}}, {L"Size ", {}}, {L"Type ", {}}};
    LightweightString<wchar_t> type = wide(t->idstring());
    if (!t->isLightweight()) type += L" (heavy)";
    return {{L"Position ", num(t->getX()) + L", " + num(t->getY())}, {L"Size ", num(t->width()) + L" x " + num(t->height())}, {L"Type ", type}};
}

void GlobInspector::InfoWidget::drawBackground() {
    StandardPanel::drawBackground();
    const UifStd& u = UifStd::instance();
    const int row = u.getRowHeight(), left = u.getIndentWidth();
    const Glib::FontDesc bold = getFont().withStyle(Glib::FontDesc::kBold);
    CanvasRenderer r(canvas());
    int top = height();
    for (const Line& line : lines()) {
        const int labelWidth = Glib::measureText(line.first, bold).x;
        r.render(Glib::TextDescription(BoxInt(left, top - row, left + labelWidth, top), line.first, bold, getPalette().text(kTextDimmed)));
        r.render(Glib::TextDescription(BoxInt(left + labelWidth, top - row, width(), top), line.second, getFont(), getPalette().text(kTextNormal)));
        top -= row;
    }
}

int GlobInspector::InfoWidget::handleMouseEvent(const Event& e) {
    if (!mouse_left_event(e)) return 0;
    if (mouse_down_event(e)) {
        pressedAt_ = e.screenPos();
        return 1;
    }
    if (!mouse_up_event(e)) return 0;
    const XY<int> moved = e.screenPos() - pressedAt_;
    if (std::abs(moved.x) + std::abs(moved.y) < UifStd::instance().getWidgetGap()) toggleHighlight();
    redraw();
    return 1;
}

void GlobInspector::InfoWidget::toggleHighlight() {
    if (highlighted_) {
        selection_.deleteGlob();
        highlighted_ = false;
        return;
    }
    if (SelectionRectangle* rect = SelectionRectangle::showOver(target_.get())) {
        selection_ = GlobHandle<Glob>(rect);
        highlighted_ = true;
    }
}

MenuData GlobInspector::InfoWidget::menuFor() const {
    MenuData menu;
    Glob* t = target_.get();
    if (!t) return menu;
    auto* panel = dynamic_cast<StandardPanel*>(t);
    if (panel) {
        MenuData::Entry border{UIString(L"Border"), kBorderMsg, {}, static_cast<int>(panel->getBorder().type())};
        for (const wchar_t* name : kBorderNames) border.values.emplace_back(name);
        menu.add(border);
    }
    menu.addYesNo(UIString(L"Shadow"), kShadowMsg, t->hasShadow());
    if (panel) {
        for (int bit : kFurnitureBits)
            menu.addYesNo(UIString(wide(standardWidgetName(bit))), LightweightString<char>(std::to_string(bit).c_str()),
                          (panel->standardWidgets() & bit) != 0);
    }
    menu.addYesNo(UIString(L"Visible"), kVisibleMsg, t->isVisible());
    return menu;
}

void GlobInspector::InfoWidget::reviewMenu(const Event*) {
    clearMenu();
    for (const MenuItem& item : menuFor().items()) addMenuItem(item);
}

int GlobInspector::InfoWidget::handleDataMessageEvent(const LightweightString<char>& message, Glob* sender, const Zn::Ptr<iObject>& data) {
    auto change = Zn::dynamicCast<MenuData::Change>(data);
    if (!change) return StandardPanel::handleDataMessageEvent(message, sender, data);
    Glob* t = target_.get();
    if (message == kBorderMsg)
        GlobInspector::handleBorderChangeRequest(t, *change);
    else if (message == kShadowMsg)
        GlobInspector::handleShadowChangeRequest(t, *change);
    else if (message == kVisibleMsg)
        GlobInspector::handleVisChangeRequest(t, *change);
    else
        GlobInspector::handleWidgetChangeRequest(t, *change);
    if (parent()) parent()->redraw();
    return 1;
}
