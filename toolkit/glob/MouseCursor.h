#pragma once

// The mouse cursors a glob can ask for (contextCursor, setDefaultMouseCursor). The
// numbers are part of the toolkit's contract (NUMBERS.md) and start at 16.
enum MouseCursorID {
    kCursorArrow = 16,
    kCursorIBeam = 17,
    kCursorCrosshair = 18,
    kCursorMove = 19,
    // Something that acts when clicked: a link, a swatch, a button that drops a panel.
    kCursorHand = 20,
    // Something that moves when dragged: a marker, a dial's needle.
    kCursorDrag = 21,
    kCursorResizeHorizontal = 22,
    kCursorResizeVertical = 23,
    kCursorWait = 24,
    kCursorForbidden = 25,
    // Taking a colour off the screen.
    kCursorEyeDropper = 26,
};
