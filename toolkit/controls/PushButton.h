#pragma once

#include "Button.h"

/// The button of a panel's actions (OK, Save, Next): a Button that shows the
/// panel's main action in the do-it colour when made the default.
class PushButton : public Button {
public:
    /// What a PushButton is made from: a Button's record.
    struct InitArgs : Button::InitArgs {
        using Button::InitArgs::InitArgs;
    };

    explicit PushButton(const InitArgs& args) : Button(args) {}
    const char* idstring() const override { return "PushButton"; }

    void setDefault(bool isDefault);
    bool isDefault() const { return default_; }

    void drawBackground() override;

private:
    bool default_ = false;
};
