#pragma once

#include "controls/StandardPanel.h"
#include "draw/CanvasRenderer.h"
#include "glob/GlobManager.h"
#include "testing/TestKit.h"

// A glob that fills itself with one colour and records what reaches it and how often it paints.
class Block : public Glob {
public:
    struct InitArgs : GlobCreationInfo {
        Colour colour;
        InitArgs(int w, int h, const Colour& c) : GlobCreationInfo(static_cast<unsigned short>(w), static_cast<unsigned short>(h)), colour(c) {}
    };
    explicit Block(const InitArgs& a) : Glob(a), colour(a.colour) {}
    const char* idstring() const override { return "Block"; }
    void drawBackground() override {
        ++paints;
        CanvasRenderer(canvas()).fill(colour);
    }
    int react(const Event& e) override {
        events.push_back(e);
        return consume ? 1 : 0;
    }
    bool acceptsKbdFocus() const override { return focusable; }
    void handleKbdFocus(bool gained) override { focusChanges.push_back(gained); }

    Colour colour;
    std::vector<Event> events;
    std::vector<bool> focusChanges;
    int paints = 0;
    bool consume = true;
    bool focusable = false;
};

// A top-level panel of a plain colour and no border, realized on the screen.
inline StandardPanel* makeRootPanel(int w, int h, XY<int> at = {100, 100}, const Colour& c = Colour(0.2, 0.2, 0.2)) {
    StandardPanel::InitArgs args(static_cast<unsigned short>(w), static_cast<unsigned short>(h));
    auto* p = new StandardPanel(args);
    p->setCol(c, false);
    return TestKit::realize(p, at);
}
