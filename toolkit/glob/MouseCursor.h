#pragma once

enum MouseCursorID {
    kCursorArrow = 0,
    kCursorIBeam,
    kCursorHand,
    kCursorCrosshair,
    kCursorMove,
    kCursorResizeHorizontal,
    kCursorResizeVertical,
    kCursorWait,
    kCursorForbidden,
};
