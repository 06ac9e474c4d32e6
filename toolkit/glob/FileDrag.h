#pragma once

#include "core/LightweightString.h"

#include <functional>
#include <vector>

namespace Glib {
// Hands files to the system's drag and drop, so that the user can drop them on
// another program. The drag itself belongs to the window backend, which installs
// a handler; with none (headless) nothing is dragged and the answer is false.
bool dragFilesToOS(const std::vector<LightweightString<wchar_t>>& paths);

using FileDragHandler = std::function<bool(const std::vector<LightweightString<wchar_t>>&)>;
// Installs the handler; an empty one removes it.
void setFileDragHandler(FileDragHandler handler);
} // namespace Glib
