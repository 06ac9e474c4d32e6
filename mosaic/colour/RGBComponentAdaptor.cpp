#include "RGBComponentAdaptor.h"

#include <algorithm>

RGBComponentAdaptor::RGBComponentAdaptor(int component, ValServer<ColourData>* server)
    : ColourFacetAdaptor(server), component_(static_cast<ColourData::ComponentID>(std::clamp(component, 0, 3))), space_(colour().getColourSpace()) {}

double RGBComponentAdaptor::getDataValue() {
    ColourData c = colour();
    c.setColourSpace(kColourSpaceRGB);
    return c.getComponent(component_);
}

bool RGBComponentAdaptor::requestSetNewDataValue(const double& value, DataChangeType) {
    ColourData c = colour();
    c.setColourSpace(kColourSpaceRGB);
    c.setComponent(component_, value);
    c.setColourSpace(space_);
    store(c);
    return true;
}
