#include "TitleMenuButton.h"

#include "draw/CanvasRenderer.h"
#include "draw/UifStd.h"
#include "glob/Messaging.h"

#include <algorithm>

TitleMenuButton::TitleMenuButton(const InitArgs& args)
    : StandardPanel(StandardPanel::InitArgs(args, Border(Border::kNoBorder, 0, 15))), titleText_(args.title), buttonWidth_(args.buttonWidth) {
    if (height() == 0) resize(width(), UifStd::instance().getRowHeight());
    DropDownMenuButton::InitArgs b(args.entries);
    if (!args.items.empty()) b.items = args.items;
    b.canvas = canvas();
    b.isChild = true;
    b.palette = getPalette();
    b.height = std::min(height(), UifStd::instance().getRowHeight());
    button_ = new DropDownMenuButton(b);
    addChild(button_, RightCentre(0, 0));
    layoutButton();
}

void TitleMenuButton::layoutButton() {
    if (!button_) return;
    const UifStd& u = UifStd::instance();
    int w = buttonWidth_;
    if (w == 0) {
        // As wide as the widest entry needs, but not over the title unless the
        // title would leave the button less than half the row.
        int titleRoom = titleText_.empty() ? 0 : u.getLegendInset() + Glib::measureText(titleText_.getString(), getFont()).x + u.getWidgetGap();
        w = std::min(DropDownMenuButton::calcWidth(button_->getItems(), button_->getFont()), std::max(width() / 2, width() - titleRoom));
    }
    w = std::clamp(w, 0, width());
    button_->resize(w, std::min(height(), u.getRowHeight()));
    calcAbsoluteWidgetPositions();
}

void TitleMenuButton::resize(double w, double h) {
    StandardPanel::resize(w, h);
    layoutButton();
}

void TitleMenuButton::setTitleText(const UIString& title, eRedrawFlag flag) {
    titleText_ = title;
    layoutButton();
    if (flag == kRedraw) redraw();
}

void TitleMenuButton::setStrings(const std::vector<MenuItem>& rows, const MenuItemIndex& selected, eRedrawFlag flag) {
    button_->setStrings(rows, selected, kNoRedraw);
    layoutButton();
    if (flag == kRedraw) redraw();
}

void TitleMenuButton::setStrings(const std::vector<UIString>& entries, const MenuItemIndex& selected, eRedrawFlag flag) {
    button_->setStrings(entries, selected, kNoRedraw);
    layoutButton();
    if (flag == kRedraw) redraw();
}

void TitleMenuButton::setActive(bool active, eRedrawFlag flag) {
    StandardPanel::setActive(active, kNoRedraw);
    button_->setActive(active, kNoRedraw);
    if (flag == kRedraw) redraw();
}

void TitleMenuButton::drawBackground() {
    StandardPanel::drawBackground();
    const int left = UifStd::instance().getLegendInset(), right = button_->getX() - UifStd::instance().getWidgetGap();
    if (titleText_.empty() || right <= left) return;
    Glib::TextDescription t(BoxInt(left, 0, right, height()), titleText_.getString(), getFont(),
                            getPalette().text(isActive() ? kTextNormal : kTextDimmed));
    t.ellipsize = true;
    CanvasRenderer(canvas()).render(t);
}

int TitleMenuButton::handleMessageEvent(const LightweightString<char>& message, Glob* sender) {
    if (sender != button_) return StandardPanel::handleMessageEvent(message, sender);
    Glob* owner = logicalParent();
    if (!owner) return 1;
    // The owner may rebuild the rows in answer to the opening, so it hears of it at once.
    if (message == DropDownMenuButton::ddBtnClickMsg)
        callMessage(message, owner, this);
    else
        sendMessage(message, owner, this);
    return 1;
}

int TitleMenuButton::handleDataMessageEvent(const LightweightString<char>& message, Glob* sender, const Zn::Ptr<iObject>& data) {
    if (sender != button_ || !data) return StandardPanel::handleDataMessageEvent(message, sender, data);
    if (Glob* owner = logicalParent()) sendMessageWithData(message, owner, data, this);
    return 1;
}
