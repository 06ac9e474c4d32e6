#pragma once

#include "core/LightweightString.h"

#include <vector>

namespace Zn {
// Shows the files in the system's file manager without opening them; see
// OSServices::revealInFileManager. False when none could be shown.
bool revealFilesInOS(const std::vector<LightweightString<wchar_t>>& paths);
} // namespace Zn
