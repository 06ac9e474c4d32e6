#pragma once

#include <numbers>

// Degrees to radians.
constexpr double rad(double degrees) { return degrees * std::numbers::pi / 180.0; }
