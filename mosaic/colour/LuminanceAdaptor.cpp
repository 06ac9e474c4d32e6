#include "LuminanceAdaptor.h"

bool LuminanceAdaptor::requestSetNewDataValue(const double& value, DataChangeType) {
    ColourData c = colour();
    c.setColourSpace(kColourSpaceHSV);
    c.setComponent(ColourData::kThird, value);
    c.setColourSpace(space_);
    store(c);
    return true;
}
