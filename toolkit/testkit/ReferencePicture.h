#pragma once

#include "core/Box.h"

#include <gtest/gtest.h>

#include <string>

class Glob;

namespace TestKit {

// Compares the widget as it shows on the screen with the PNG picture `reference`:
// passes when red, green and blue of every pixel each differ by at most
// `tolerance`. On a mismatch, or when the reference is missing, the widget's
// picture is written beside the reference as NAME_err.png (a later pass removes
// it). With MOSAIC_UPDATE_REFERENCES=1 in the environment it writes the reference
// instead, and passes: that is how references are made and remade.
::testing::AssertionResult matchesReference(const Glob* g, const std::string& reference, int tolerance = 8);
// The same for a part of the screen, in screen coordinates.
::testing::AssertionResult matchesReference(const BoxInt& screenArea, const std::string& reference, int tolerance = 8);

} // namespace TestKit
