#pragma once

#include "controls/TitleTextBox.h"

/// A titled box for one number of a colour: digits and a point only, centred, its
/// legend set against the box.
class ComponentTextBox : public TitleTextBox {
public:
    explicit ComponentTextBox(const TitleTextBox::InitArgs& args);
    const char* idstring() const override { return "ComponentTextBox"; }
};
