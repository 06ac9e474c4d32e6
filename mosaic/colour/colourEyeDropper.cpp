#include "colourEyeDropper.h"

#include "draw/FontDesc.h"

colourEyeDropper::InitArgs::InitArgs(unsigned short width, unsigned short height)
    : ImageButton::InitArgs(::getIconPath(L"eyedropper.png"), WidgetCallback(clickMsg), width, height) {}

colourEyeDropper::InitArgs::InitArgs(const UIString& label, unsigned short width, unsigned short height) : InitArgs(width, height) {
    this->label = label;
}

void colourEyeDropper::evaluatePixelAndNotify(unsigned short x, unsigned short y) {
    LightweightString<char> text;
    grabPixelColour(x, y, text);
    if (Glob* p = parent()) sendMsg(p, text.c_str());
}
