#pragma once

#include "core/LightweightString.h"

// The folder where logs are saved by themselves: $MOSAIC_HOME/logs when that is
// set, else $XDG_STATE_HOME/mosaic/logs, else ~/.local/state/mosaic/logs. It is
// not made here: whoever writes the first log makes it (OS()->makeFolder).
LightweightString<wchar_t> getSystemLogDirectory();
