#include "TitleGlob.h"

#include "draw/CanvasRenderer.h"
#include "draw/UifStd.h"
#include "glob/Messaging.h"

#include <algorithm>

namespace {

bool anchoredLeft(eCoordinateOrigin o) { return o == kUserBottomLeft || o == kBottomLeft || o == kUserTopLeft || o == kTopLeft || o == kLeftCentre; }

// Origins whose vertical offset counts up from the bottom edge, which the row
// keeps at the value that centres the control.
bool offsetFromBottom(eCoordinateOrigin o) { return o == kUserBottomRight || o == kBottomRight || o == kUserBottomLeft || o == kBottomLeft; }

Glib::FontDesc resolveFont(const Glib::FontDesc& f) { return f == Glib::FontDesc() ? UifStd::instance().getDefaultFont() : f.resolved(); }

} // namespace

TitleGlob::TitleGlob(const InitArgs& args) : StandardPanel(StandardPanel::InitArgs(args, Border(Border::kNoBorder, 0, 15))), legend_(args.title) {
    requestedFont_ = args.font;
    legendFont_ = resolveFont(args.font);
    autoWidth_ = args.titleWidth <= 0;
    titleWidth_ = autoWidth_ ? calcTitleWidth(legend_, legendFont_) : args.titleWidth;
}

int TitleGlob::calcTitleWidth(const UIString& title, const Glib::FontDesc& font) {
    const LightweightString<wchar_t> text = title.getString();
    const UifStd& u = UifStd::instance();
    if (text.empty()) return u.getWidgetGap();
    return u.getLegendInset() + Glib::measureText(text, resolveFont(font)).x + u.getWidgetGap();
}

void TitleGlob::setTitle(const UIString& title, const Glib::FontDesc& font, eRedrawFlag flag) {
    legend_ = title;
    if (!(font == Glib::FontDesc())) {
        requestedFont_ = font;
        legendFont_ = font.resolved();
    }
    if (autoWidth_) applyTitleWidth(calcTitleWidth(legend_, legendFont_));
    handleTitleChange();
    if (flag == kRedraw) redraw();
}

int TitleGlob::getTitleWidth() const { return std::clamp(titleWidth_, 0, std::max(0, getUserArea().width())); }

void TitleGlob::setTitleWidth(int width, eRedrawFlag flag) {
    autoWidth_ = false;
    applyTitleWidth(width);
    if (flag == kRedraw) redraw();
}

void TitleGlob::applyTitleWidth(int width) {
    const int before = getTitleWidth();
    titleWidth_ = std::max(0, width);
    const int change = getTitleWidth() - before;
    if (Glob* c = getControl(); c && change != 0) {
        WidgetDetails d = getWidget(c);
        if (anchoredLeft(d.position.origin)) {
            d.position.offset.x += change;
            setWidgetDetails(d);
        }
        c->resize(std::max(0, c->width() - change), c->height());
    }
}

void TitleGlob::setTitleAlignment(Glib::eHorizontalAlign align) {
    align_ = align;
    redraw();
}

BoxInt TitleGlob::titleBox() const {
    const BoxInt u = getUserArea();
    return BoxInt(u.x1, u.y1, u.x1 + getTitleWidth(), u.y2);
}

BoxInt TitleGlob::controlBox() const {
    const BoxInt u = getUserArea();
    return BoxInt(u.x1 + getTitleWidth(), u.y1, u.x2, u.y2);
}

Glob* TitleGlob::getControl() const {
    if (control_ && EventHandler::valid(control_, controlStamp_) && control_->parent() == this) return control_;
    return nullptr;
}

void TitleGlob::setControl(Glob* control) {
    if (control && control->parent() != this) return;
    control_ = control;
    controlStamp_ = control ? control->stamp() : IdStamp();
}

void TitleGlob::handleWidgetAdded(const WidgetDetails& details) {
    if (!getControl()) setControl(details.child);
}

void TitleGlob::setActive(bool active, eRedrawFlag flag) {
    Glob::setActive(active, kNoRedraw);
    for (Glob* child : getChildren()) child->setActive(active, kNoRedraw);
    if (flag == kRedraw) redraw();
}

void TitleGlob::resize(double width, double height) {
    const int before = this->width();
    StandardPanel::resize(width, height);
    Glob* c = getControl();
    if (!c) return;
    const int change = this->width() - before;
    const int rowHeight = getUserArea().height();
    c->resize(std::max(0, c->width() + change), std::min(c->height(), rowHeight));
    centreControl();
}

void TitleGlob::centreControl() {
    Glob* c = getControl();
    if (!c) return;
    WidgetDetails d = getWidget(c);
    if (!offsetFromBottom(d.position.origin)) return;
    const int y = std::max(0, (getUserArea().height() - c->height()) / 2);
    if (d.position.offset.y == y) return;
    d.position.offset.y = y;
    setWidgetDetails(d);
}

void TitleGlob::drawBackground() {
    StandardPanel::drawBackground();
    const LightweightString<wchar_t> text = legend_.getString();
    if (text.empty()) return;
    const int inset = UifStd::instance().getLegendInset(), gap = UifStd::instance().getWidgetGap();
    const BoxInt t = titleBox();
    if (t.width() <= inset + gap) return;
    Glib::TextDescription d(BoxInt(t.x1 + inset, t.y1, t.x2 - gap, t.y2), text, legendFont_,
                            getPalette().text(isActive() ? kTextNormal : kTextDimmed), align_);
    d.ellipsize = true;
    CanvasRenderer(canvas()).render(d);
}

void TitleGlob::handleUIChange(unsigned int what) {
    // A legend column measured from its text follows the new font; one the owner set stays.
    legendFont_ = resolveFont(requestedFont_);
    if (autoWidth_) {
        applyTitleWidth(calcTitleWidth(legend_, legendFont_));
    }
    StandardPanel::handleUIChange(what);
}

int TitleGlob::handleMessageEvent(const LightweightString<char>& message, Glob* sender) {
    Glob* owner = logicalParent();
    if (!owner || !sender || !isParentedTo(sender, this)) return StandardPanel::handleMessageEvent(message, sender);
    return callMessage(message, owner, sender);
}

int TitleGlob::handleDataMessageEvent(const LightweightString<char>& message, Glob* sender, const Zn::Ptr<iObject>& data) {
    Glob* owner = logicalParent();
    if (!owner || !sender || !isParentedTo(sender, this)) return StandardPanel::handleDataMessageEvent(message, sender, data);
    return callMessageWithData(message, owner, data, sender);
}
