#include "TitleTextBox.h"

#include "draw/CanvasRenderer.h"
#include "draw/UifStd.h"

#include <algorithm>

TitleTextBox::TitleTextBox(const InitArgs& args)
    : StandardPanel(StandardPanel::InitArgs(args, Border(Border::kNoBorder, 0, 15))), legend_(args.title), style_(args.style) {
    titleWidth_ = args.entryWidth > 0 ? std::max(0, width() - args.entryWidth) : calcTitleWidth(legend_, getFont());
    titleWidth_ = std::min(titleWidth_, width());
    // Made by hand rather than by createWidget, for which a width of 0 would mean
    // the whole width rather than none left over.
    TextBox::InitArgs boxArgs(args.text, static_cast<unsigned short>(width() - titleWidth_), static_cast<unsigned short>(height()));
    boxArgs.canvas = canvas();
    boxArgs.palette = getPalette();
    box_ = new TextBox(boxArgs);
    addChild(box_, BottomLeft(titleWidth_, 0));
}

int TitleTextBox::calcTitleWidth(const UIString& title, const Glib::FontDesc& font) {
    if (title.empty()) return 0;
    const UifStd& u = UifStd::instance();
    return u.getLegendInset() + u.measure(title.getString(), font.resolved()).x + u.getWidgetGap();
}

void TitleTextBox::layoutBox() {
    titleWidth_ = std::clamp(titleWidth_, 0, width());
    box_->resize(width() - titleWidth_, height());
    setWidgetPos(box_, BottomLeft(titleWidth_, 0));
    redraw();
}

void TitleTextBox::setLegend(const UIString& legend) {
    legend_ = legend;
    redraw();
}

void TitleTextBox::setTitleWidth(int w) {
    titleWidth_ = w;
    layoutBox();
}

void TitleTextBox::setStyle(eStyle style) {
    style_ = style;
    redraw();
}

void TitleTextBox::requestCallback(const LightweightString<char>& message, EventHandler* target, TextBoxBase::eCallbackEvent event) {
    // The box's owner is this widget, which does not take the message itself.
    box_->requestCallback(message, target ? target : logicalParent(), event);
}

void TitleTextBox::setActive(bool active, eRedrawFlag flag) {
    box_->setActive(active, kNoRedraw);
    StandardPanel::setActive(active, flag);
}

void TitleTextBox::setPalette(const Palette& palette) {
    StandardPanel::setPalette(palette);
    box_->setPalette(palette);
}

void TitleTextBox::setFont(const Glib::FontDesc& font) {
    StandardPanel::setFont(font);
    box_->setFont(font);
}

void TitleTextBox::resize(double w, double h) {
    StandardPanel::resize(w, h);
    if (box_) layoutBox();
}

void TitleTextBox::drawBackground() {
    CanvasRenderer r(canvas());
    r.fill(getPalette().window());
    const int inset = UifStd::instance().getLegendInset(), gap = UifStd::instance().getWidgetGap();
    if (legend_.empty() || titleWidth_ <= inset + gap) return;
    Glib::TextDescription legend(BoxInt(inset, 0, titleWidth_ - gap, height()), legend_.getString(), getFont(),
                                 isActive() ? getPalette().text() : getPalette().text(kTextDimmed),
                                 style_ == kLegendAgainstBox ? Glib::kAlignRight : Glib::kAlignLeft);
    legend.ellipsize = true;
    r.render(legend);
}
