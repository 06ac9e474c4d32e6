#pragma once

// The library's version as four numbers parted by dots, such as "0.1.0.0".
const char* mosaicDllVersionStr();
