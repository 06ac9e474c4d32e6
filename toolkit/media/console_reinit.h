#pragma once

// Starts the hardware control console again, on or off as the preference
// "HardwareConsoleEnabled" now says.
void console_reinit();
// Whether the console runs, as of the last console_reinit.
bool console_running();
