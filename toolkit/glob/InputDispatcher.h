#pragma once

#include "GlobHandle.h"
#include "core/Event.h"

#include <vector>

class Glob;

/// Routes input in screen coordinates to globs. The mouse goes to the deepest glob
/// under it (or to the glob that took the button down, until it is released), keys
/// and typed text to the glob with keyboard focus; either bubbles up through the
/// parents until one consumes it. The event intercept stack sees mouse and key
/// events before all of that. Every pointer it keeps is checked by stamp.
class InputDispatcher {
public:
    void dispatch(const Event& e);

    Glob* focus() const;
    void setFocus(Glob* g);
    Glob* capture() const;
    void releaseCapture() { capture_ = {}; }
    Glob* hover() const;
    XY<int> mousePos() const { return mouse_; }
    void forget(Glob* g);
    // Carries a top-level glob with the mouse from `grab` until the button goes up.
    void startMoving(Glob* root, XY<int> grab);
    // The top-level glob the user last worked in.
    Glob* it() const;
    // Lets `g` hear of every mouse press outside its top-level glob before the press
    // is routed, as an open menu must to close itself. A non-zero answer from its
    // handleEvent swallows the press.
    void watchPressesOutside(Glob* g);
    void stopWatchingPressesOutside(Glob* g);

private:
    using Ref = GlobHandle<Glob>;
    // Points `ref` at `g`, telling the glob it leaves and the one it reaches.
    static void change(Ref& ref, Glob* g, void (Glob::*tell)(bool));

    Glob* targetForMouse(const Event& e) const;
    Glob* targetForKeys() const;
    // Gives the event to `g` and its ancestors in turn; returns the glob that consumed it.
    Glob* bubble(Glob* g, Event e);
    void updateHover(Glob* g);
    void countClicks(Event& e);

    bool moveWithMouse(const Event& e);
    void setIt(Glob* root);
    // Lets each ancestor of `target`, outermost first, take the event before it.
    bool intercepted(Glob* target, const Event& e);
    // Tells the watchers that a press missed; true when one of them swallowed it.
    bool pressedOutside(const Event& e);

    Ref focus_, capture_, hover_, moving_, it_;
    std::vector<Ref> outsideWatchers_;
    XY<int> moveGrab_, moveOrigin_;
    XY<int> mouse_;
    XY<int> lastClickPos_;
    long long lastClickMs_ = 0;
    int clicks_ = 0;
};
