#pragma once

// The diagnostic log, for a failure that nothing on the screen can show: a line in
// printf's manner on standard error. Any thread.
void LogBoth(const char* format, ...) __attribute__((format(printf, 1, 2)));
