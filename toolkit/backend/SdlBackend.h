#pragma once

#include "core/Event.h"

#include <memory>

/// Shows the toolkit's screen in one SDL window and feeds the window's keyboard,
/// mouse, wheel and resize events to the glob manager as toolkit events. It runs the
/// user-interface loop: input, posted messages, timer ticks, then the screen.
class SdlBackend {
public:
    SdlBackend();
    ~SdlBackend();
    SdlBackend(const SdlBackend&) = delete; // owns the window
    SdlBackend& operator=(const SdlBackend&) = delete;

    // True when SDL has a video driver that can open a window here.
    static bool displayAvailable();
    // Why the last SDL call failed, for telling the user; empty when nothing did.
    static const char* lastError();

    // Opens the window the size of the screen. False when no window can be made.
    bool open(const char* title);
    bool isOpen() const;
    // Runs until the window is closed, quit() is called, or (with `untilNoGlobs`)
    // the last top-level glob is gone.
    void run(bool untilNoGlobs = false);
    // One turn of the loop, waiting at most `waitMs` for input.
    void runOnce(int waitMs);
    void quit() { quitting_ = true; }
    // True once the window was asked to close or quit() was called: for a caller
    // that turns the loop itself with runOnce().
    bool quitRequested() const { return quitting_; }

    // Turns an SDL event into a toolkit event; kNone for events the toolkit does not take.
    // Exposed for tests; `screenHeight` flips SDL's top-down y to bottom-up.
    static Event translate(const void* sdlEvent, int screenHeight);

private:
    void present();
    void updateCursor();
    void installSystemClipboard();
    void installFileDrag();
    void handle(const void* sdlEvent);

    struct Impl;
    std::unique_ptr<Impl> impl_;
    bool quitting_ = false;
};
