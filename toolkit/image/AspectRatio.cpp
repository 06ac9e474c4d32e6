#include "AspectRatio.h"

double Zn::getAspectRatio(Image::AspectRatio ratio) {
    switch (ratio) {
    case Image::kAspect4x3: return 4.0 / 3.0;
    case Image::kAspect1x1: return 1.0;
    case Image::kAspect14x9: return 14.0 / 9.0;
    case Image::kAspect1_85: return 1.85;
    case Image::kAspect2_39: return 2.39;
    case Image::kAspectUnknown:
    case Image::kAspect16x9: break;
    }
    return 16.0 / 9.0;
}
