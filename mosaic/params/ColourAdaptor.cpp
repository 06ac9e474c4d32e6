#include "ColourAdaptor.h"

ColourData ColourAdaptor::getDataValue() {
    if (!server()) return ColourData(0.0, 0.0, 0.0, kColourSpaceRGB, 0.0);
    const NormalisedRGB c = *this;
    return ColourData(c.r, c.g, c.b, kColourSpaceRGB, 1.0);
}

bool ColourAdaptor::requestSetNewDataValue(const ColourData& colour, DataChangeType) {
    ColourData rgb = colour;
    rgb.setColourSpace(kColourSpaceRGB);
    ValClient<NormalisedRGB>::operator=(
        NormalisedRGB(static_cast<float>(rgb.getRed()), static_cast<float>(rgb.getGreen()), static_cast<float>(rgb.getBlue()), 1.0f));
    return true;
}
