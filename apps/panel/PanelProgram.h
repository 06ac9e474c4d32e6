#pragma once

#include "params/HostPanel.h"
#include "platform/configb.h"

#include <string>
#include <vector>

// What mosaic-panel does with a built panel, apart from running it: read the
// description, set values as a user would, and describe the result as JSON.
namespace PanelProgram {

// Reads a description file. On failure `error` says why, for the user: the file
// cannot be read, is not JSON (with where), or holds no list of parameters.
Zn::Ptr<JSON::Element> readDescription(const std::string& path, std::string& error);

// Reads the saved state at `path` into `state`. A file that is not there yet is
// the first run: true, with nothing read. False, with `error` set, for a file that
// is there but is no saved state (a description, a text of the user's): the program
// must leave it alone rather than save over it.
bool readState(const std::string& path, configb& state, std::string& error);

// The size of a host panel that shows `rows` rows of `width` pixels.
XY<int> panelSizeFor(unsigned rows, int width);

// Sets a parameter from text through the control of its row, as the user's own
// change would go: the control's range and the parameter's constraints, bounds,
// conditions and listeners all apply. False, with `error` set, for an id without
// a row or a row that takes no value (a label, an action).
bool setFromText(UIBuilder::Params& params, const std::string& id, const std::string& value, std::string& error);

// {"id": "value", ...} of every parameter, in row order, values as their text.
std::string valuesAsJSON(const UIBuilder::Params& params);
// The panel's place on the screen and its size, and each row in row order: id (empty for a heading), kind,
// x, y (from the panel's bottom left), width, height, visible, active.
std::string layoutAsJSON(const StandardPanel* panel, const UIBuilder::Params& params);

} // namespace PanelProgram
