#pragma once

#include "Button.h"

/// The record of a button that opens a widget of its own beside itself when pressed.
struct DropDownButtonInitArgs : Button::InitArgs {
    // A flat face, shown only while hovered or pressed, for tool bars.
    bool flat = false;

    DropDownButtonInitArgs() = default;
    DropDownButtonInitArgs(const UIString& label, const WidgetCallback& callback, unsigned short width = 0, unsigned short height = 0)
        : Button::InitArgs(label, callback, width, height) {}
};
