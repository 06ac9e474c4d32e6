#pragma once

// Styles a titled drop-down widget after creation: no border of its own, the
// flat style on both style words of its inner button, and no frame.
template <class T>
T* applyStyleTo(T* widget) {
    if (!widget) return widget;
    widget->setBorderStyle(static_cast<decltype(widget->getBorder().type())>(0));
    widget->button()->setStyle(1, 1);
    widget->setFrame(false);
    return widget;
}
