#pragma once

#include "draw/CanvasRenderer.h"

// The small solid triangle that scroll bars, trees and column headers draw, built
// from whole-pixel rows so that it stays crisp at every scale.
namespace ArrowGlyph {

enum eDirection { kUp, kDown, kLeft, kRight };

// Draws the triangle centred in `box`, about half as wide as the box's smaller side.
void draw(const CanvasRenderer& r, const BoxInt& box, eDirection direction, const Colour& colour);

} // namespace ArrowGlyph
