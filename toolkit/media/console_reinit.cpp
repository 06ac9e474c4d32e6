#include "console_reinit.h"

#include "platform/EditorPreferences.h"

namespace {
bool& running() {
    static bool on = false;
    return on;
}
} // namespace

void console_reinit() { running() = prefs().getPreference("HardwareConsoleEnabled", false); }

bool console_running() { return running(); }
