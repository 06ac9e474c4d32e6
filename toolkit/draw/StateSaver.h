#pragma once

class Canvas;

namespace Glib {

/// Saves the drawing state over a scope: which canvas is current, and that
/// canvas's colour, line, clip and origin settings, all restored on exit.
class StateSaver {
public:
    StateSaver();
    ~StateSaver();
    StateSaver(const StateSaver&) = delete;
    StateSaver& operator=(const StateSaver&) = delete;

private:
    Canvas* canvas_;
};

// The canvas that drawing without an explicit one goes to; null when none.
Canvas* currentCanvas();
void setCurrentCanvas(Canvas* c);

} // namespace Glib
