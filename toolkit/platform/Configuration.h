#pragma once

#include "core/LightweightString.h"

// The application's configuration: a JSON object of keys in "config.json" in the
// settings folder, or the file named by MOSAIC_CONFIG. Read once, at first use; a
// file that is missing, unreadable or not a JSON object gives no keys.
int config_int(const char* key, int fallback);
LightweightString<char> config_string(const char* key, const LightweightString<char>& fallback = {});

namespace Configuration {
// Reads the file again (tests, or after the environment changed).
void reload();
// The folder of the user's settings: $MOSAIC_HOME, else $XDG_CONFIG_HOME/mosaic, else ~/.config/mosaic.
LightweightString<char> settingsFolder();
// The folder of the shipped resources (strings, icons): $MOSAIC_RESOURCES, else the
// source tree's when it is there, else the installed one.
LightweightString<char> resourcesFolder();
} // namespace Configuration
