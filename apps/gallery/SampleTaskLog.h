#pragma once

#include "tasks/iTaskLog.h"

// The rows of an export under way as its task writes them to its log: a row of every kind,
// indents, a link, a section with its rule and a line long enough to wrap. The
// logger scene feeds them from a worker, and commands that show a task's log are
// given a log that holds them.
void writeSampleExportRows(iTaskLog& log);
