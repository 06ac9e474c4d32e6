#pragma once

#include "core/IdStamp.h"

#include <vector>

class EventHandler;

enum eRedrawFlag { kNoRedraw = 0, kRedraw = 1 };

// Something that paints on request. While redraws are disabled (the brackets
// nest), requests are remembered and carried out once by update() or by the
// enableRedraws() that closes the outermost bracket. Requests from an object that
// has died meanwhile are dropped.
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
    static std::size_t pendingCount();

    // Paints now, or remembers to when redraws are disabled.
    void redraw();

protected:
    // Does the painting itself.
    virtual void paintNow() = 0;

private:
    EventHandler* owner_;
};
