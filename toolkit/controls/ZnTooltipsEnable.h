#pragma once

// Turns the toolkit's tooltips on or off, as a tool that takes the screen over
// does for as long as it has it.
void ZnTooltipsEnable(bool enabled);
