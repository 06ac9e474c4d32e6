#include "getSystemLogDirectory.h"

#include "Paths.h"
#include "core/Utf8.h"

#include <cstdlib>

namespace {
LightweightString<wchar_t> fromEnvironment(const char* name) {
    const char* v = std::getenv(name);
    return v && *v ? fromUTF8(v) : LightweightString<wchar_t>();
}
} // namespace

LightweightString<wchar_t> getSystemLogDirectory() {
    if (auto home = fromEnvironment("MOSAIC_HOME"); !home.empty()) return joinPaths(home, L"logs");
    if (auto state = fromEnvironment("XDG_STATE_HOME"); !state.empty()) return joinPaths(state, L"mosaic/logs");
    auto user = fromEnvironment("HOME");
    return joinPaths(user.empty() ? LightweightString<wchar_t>(L"/tmp") : user, L".local/state/mosaic/logs");
}
