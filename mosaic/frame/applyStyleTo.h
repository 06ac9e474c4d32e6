#pragma once

#include "controls/Button.h"
#include "glob/Border.h"

// Styles a titled drop-down widget after creation: no border of its own, the
// flat style on both style words of its inner button, and no frame.
template <class T>
T* applyStyleTo(T* widget) {
    if (!widget) return widget;
    widget->setBorderStyle(Border::kNoBorder);
    widget->button()->setStyle(Button::kFlat, Button::kFlat);
    widget->setFrame(false);
    return widget;
}
