#pragma once

#include "iHostImage.h"

/// A picture meant for the graphics card. There is no card to hold it here, so its
/// pixels stay in memory and it is a host image as well: whatever paints host
/// images paints it.
class iGPUImage : public iHostImage {};
