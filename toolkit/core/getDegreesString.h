#pragma once

#include "LightweightString.h"

// The degree sign, as a suffix of angles and hues.
LightweightString<wchar_t> getDegreesString();
