#pragma once

#include "controls/StandardPanel.h"

/// A see-through coloured rectangle laid over a widget on the screen to show which
/// one is meant. It is a top-level panel of its own that takes no input: the mouse
/// reaches what lies beneath it.
class SelectionRectangle : public StandardPanel {
public:
    /// What a SelectionRectangle is made from: a panel's record and how opaque it is.
    struct InitArgs : StandardPanel::InitArgs {
        float opacity = 0.5f;
        InitArgs() = default;
        InitArgs(unsigned short w, unsigned short h, float o = 0.5f) : StandardPanel::InitArgs(w, h), opacity(o) {}
    };

    explicit SelectionRectangle(const InitArgs& args);
    const char* idstring() const override { return "SelectionRectangle"; }

    // Made and shown over `target`'s place on the screen; null for a dead target.
    static SelectionRectangle* showOver(Glob* target);

    void drawBackground() override;
    int react(const Event&) override { return 0; }
};
