#include "TitleButton.h"

#include <algorithm>

TitleButton::TitleButton(const InitArgs& args) : TitleGlob(args) {
    const BoxInt room = controlBox();
    const int rowHeight = getUserArea().height();
    int w = args.buttonWidth ? std::min<int>(args.buttonWidth, room.width()) : room.width();
    int h = std::min(rowHeight, Button::calcHeight());
    Button::InitArgs b(args.label, args.callback, static_cast<unsigned short>(std::max(0, w)), static_cast<unsigned short>(std::max(0, h)));
    b.canvas = canvas();
    b.palette = getPalette();
    button_ = new Button(b);
    addChild(button_, UserBottomRight(0, std::max(0, (rowHeight - h) / 2)));
}

Button* TitleButton::getBtn() const { return getControl() == button_ ? button_ : nullptr; }

void TitleButton::setLabel(const UIString& label, eRedrawFlag flag) {
    if (Button* b = getBtn()) b->setLabel(label, flag);
}

UIString TitleButton::getLabel() const {
    Button* b = getBtn();
    return b ? b->getLabel() : UIString();
}

void TitleButton::setCallback(const WidgetCallback& callback) {
    if (Button* b = getBtn()) b->setCallback(callback);
}
