#include "DropDownColourPickerButton.h"

#include "controls/ColRect.h"
#include "draw/CanvasRenderer.h"
#include "draw/Screen.h"
#include "draw/StateSaver.h"
#include "glob/Messaging.h"

DropDownColourPickerButton::DropDownColourPickerButton(const InitArgs& args) : DropDownButton<ColourPicker>(args), flags_(args.flags) { init(); }

DropDownColourPickerButton::DropDownColourPickerButton(unsigned short size, unsigned int flags, Canvas* canvas)
    : DropDownColourPickerButton(squareRecord(size, flags, canvas)) {}

DropDownColourPickerButton::InitArgs DropDownColourPickerButton::squareRecord(unsigned short size, unsigned int flags, Canvas* canvas) {
    InitArgs args(size, size, flags);
    args.canvas = canvas;
    if (Glob* owner = canvas ? canvas_to_glob(canvas) : nullptr) args.palette = owner->getPalette();
    return args;
}

void DropDownColourPickerButton::init() {
    message_ = kColourChangedMsg;
    setStyle(0);
    setLatching(true, false);
    // The picker joins the button by lines of its own (drawBackground).
    setDropSide(kNoRelativity);
    const int indent = UifStd::instance().getIndentWidth();
    ColRect::InitArgs args(ColourData(1.0, 1.0, 1.0, kColourSpaceRGB, 1.0), WidgetCallback(),
                           static_cast<unsigned short>(std::max(0, width() - 2 * indent)),
                           static_cast<unsigned short>(std::max(0, height() - 2 * indent)));
    args.canvas = canvas();
    args.palette = getPalette();
    swatch_ = new ColRect(args);
    // Clicks on the swatch are the button's.
    swatch_->setClickable(false);
    swatch_->setLightweight(true);
    swatch_->setDefaultMouseCursor(kCursorHand);
    addChild(swatch_, Glob::Centre(0, 0));
}

void DropDownColourPickerButton::setColour(const NormalisedRGB& colour) {
    swatch_->setColour(ColourData(colour.r, colour.g, colour.b, kColourSpaceRGB, colour.a), kNoRedraw);
}

NormalisedRGB DropDownColourPickerButton::getColour() const {
    ColourData c = swatch_->getColour();
    c.setColourSpace(kColourSpaceRGB);
    return NormalisedRGB(static_cast<float>(c.getRed()), static_cast<float>(c.getGreen()), static_cast<float>(c.getBlue()),
                         static_cast<float>(c.getAlpha()));
}

void DropDownColourPickerButton::setDataAdaptor(const Zn::Ptr<ValAdaptorBase<ColourData>>& adaptor) {
    adaptor_ = adaptor;
    swatch_->setDataAdaptor(adaptor);
}

void DropDownColourPickerButton::setActive(bool state, eRedrawFlag flag) {
    swatch_->setActive(state, kNoRedraw);
    DropDownButton<ColourPicker>::setActive(state, flag);
}

ColourPicker* DropDownColourPickerButton::generateDropDown() {
    const XY<int> size = ColourPicker::calcSize(flags_);
    const XY<int> me = screenPos();
    // Over the button, sharing one pixel with it; under it where the screen ends above.
    XY<int> at(me.x, me.y + height() - 1);
    if (getDropAlignment() == kAlignEnd) at.x = me.x + width() - size.x;
    if (at.y + size.y > GlobManager::instance().screen().height()) at.y = me.y - size.y + 1;
    ColourPicker::InitArgs args(flags_, swatch_->getColour());
    args.width = static_cast<unsigned short>(size.x);
    args.height = static_cast<unsigned short>(size.y);
    args.palette = makeWindowPalette(getCol(), getPalette());
    ColourPicker* picker = nullptr;
    {
        Drawable::disableRedraws();
        const Glib::StateSaver saver;
        picker = new ColourPicker(args);
        picker->setupRootPos(GlobManager::instance().getSafePosForGlob(nullptr, at, size));
        GlobManager::instance().realize(picker);
        Drawable::enableRedraws();
    }
    picker->setMovable(false);
    picker->set_caller(this, kColourChangedMsg);
    if (adaptor_)
        picker->ColourDataValWidget::setDataAdaptor(adaptor_);
    else
        picker->setColour(swatch_->getColour());
    picker->popToTop(true);
    setModalContextGlob(picker, this);
    return picker;
}

bool DropDownColourPickerButton::handleDropDownMessage(const char* msg) {
    ColourPicker* picker = getDropDown();
    if (!picker || !msg || message_ != msg || adaptor_) return false;
    const ColourData colour = picker->getColour();
    swatch_->setColour(colour, kRedraw);
    const Zn::Ptr<iObject> event(new Event(colour));
    if (callback_)
        callback_->execute(NotifyMsg(message_, event));
    else if (Glob* p = parent())
        sendMessageWithData(message_, p, event, this);
    return false;
}

void DropDownColourPickerButton::drawBackground() {
    Button::drawBackground();
    if (getState() != kButtonDown) return;
    const Colour c = scale(getCol(), 1.5);
    const CanvasRenderer r(canvas());
    const int w = width(), h = height();
    r.render(Glib::RectDescription(BoxInt(0, 0, 1, h), c));
    r.render(Glib::RectDescription(BoxInt(0, h - 1, w, h), c));
    r.render(Glib::RectDescription(BoxInt(w - 1, 0, w, h), c));
}
