#pragma once

#include "core/LightweightString.h"

// A number of bytes for a person. Abbreviated, in the largest unit of 1024 that
// keeps the number at least 1, with one decimal below 10 ("1.5 GB", "12 MB",
// "512 bytes"); otherwise every byte ("1536 bytes").
LightweightString<wchar_t> bytesAsString(unsigned long bytes, bool abbreviated);
