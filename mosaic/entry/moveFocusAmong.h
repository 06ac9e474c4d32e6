#pragma once

#include "glob/TabOrderManager.h"

#include <vector>

// Moves the keyboard focus from the focused stop of `stops` to the next (previous)
// one that can take it. False, moving nothing, when none of them has the focus or
// the focus would leave the list: a compound widget then lets Tab go on to its panel.
bool moveFocusAmong(const std::vector<TabOrderable*>& stops, bool backwards);
