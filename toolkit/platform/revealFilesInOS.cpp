#include "revealFilesInOS.h"

#include "OS.h"

bool Zn::revealFilesInOS(const std::vector<LightweightString<wchar_t>>& paths) { return OS()->revealInFileManager(paths); }
