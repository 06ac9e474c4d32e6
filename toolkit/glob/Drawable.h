#pragma once

#include "core/IdStamp.h"

#include <functional>
#include <vector>

class EventHandler;

enum eRedrawFlag { kNoRedraw = 0, kRedraw = 1 };

/// Something that paints on request. While redraws are disabled (the brackets
/// nest), requests are remembered and carried out once by update() or by the
/// enableRedraws() that closes the outermost bracket. Requests from an object that
/// has died meanwhile are dropped.
class Drawable {
public:
    explicit Drawable(EventHandler* owner) : owner_(owner) {}
    virtual ~Drawable() = default;

    static void disableRedraws();
    static void enableRedraws();
    static bool redrawsEnabled();
    static int disableDepth();
    // Carries out every pending request now.
    static void update();
    static void clearPendingRedraws();
    // Drops the requests of the drawables that `drop` picks, and those of the dead.
    static void clearPendingRedraws(const std::function<bool(const Drawable&)>& drop);
    static std::size_t pendingCount();

    // Paints now, or remembers to when redraws are disabled. Painting now also
    // satisfies a request remembered before.
    void redraw();
    // Remembers to paint at the next update() even when redraws are enabled: for a
    // change in the middle of work that will change more before it is worth painting.
    void redrawLater();

protected:
    // Does the painting itself.
    virtual void paintNow() = 0;

private:
    EventHandler* owner_;
};
