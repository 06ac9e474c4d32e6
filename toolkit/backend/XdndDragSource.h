#pragma once

#include "core/LightweightString.h"

#include <memory>
#include <string>
#include <vector>

struct SDL_Window;
struct _XDisplay;

/// Drags files out of an SDL window on X11 to other programs, as the source side of
/// the X drag-and-drop protocol (XDND, version 5). A drag is modal: it holds the
/// pointer and keyboard from its start until the button goes up and the target has
/// taken the files (or stopped answering), and only then returns. Our own window is
/// never a target. It works on SDL's own connection to the display, on the UI thread.
class XdndDragSource {
public:
    // Null unless the window is an X11 window (not on Wayland, not off-screen).
    static std::unique_ptr<XdndDragSource> forWindow(SDL_Window* window);
    ~XdndDragSource();
    XdndDragSource(const XdndDragSource&) = delete; // owns a window of the display
    XdndDragSource& operator=(const XdndDragSource&) = delete;

    // Runs a drag of the files while the left button is held. True when a target
    // took the drop; false at once when the button is already up, the pointer
    // cannot be held, or no path can be offered; Escape cancels.
    bool drag(const std::vector<LightweightString<wchar_t>>& paths);

    // The files as a "text/uri-list": each absolute path as a file:// URI whose
    // UTF-8 bytes, but for unreserved characters and "/", are percent-encoded; a
    // text that is already a URI (a scheme and ":") as it is; anything else (a
    // relative path) left out. Every line ends in CR LF.
    static std::string uriList(const std::vector<LightweightString<wchar_t>>& paths);

private:
    struct Session;
    XdndDragSource(_XDisplay* display, unsigned long window);

    _XDisplay* display_;
    unsigned long window_; // the SDL window
    unsigned long root_ = 0;
    // Off-screen, mapped only during a drag: it holds the pointer and the
    // keyboard, owns the selection and receives the target's answers.
    unsigned long source_ = 0;
    std::vector<unsigned long> atoms_;
};
