#pragma once

#include "ColourFacetAdaptor.h"

/// Red, green or blue of a colour (or alpha, component 3) for a slider from 0 to 1.
/// A change goes back in the colour space that the server's colour had when the
/// adaptor was made.
class RGBComponentAdaptor : public ColourFacetAdaptor<double> {
public:
    // A component outside 0 to 3 is held to that range.
    RGBComponentAdaptor(int component, ValServer<ColourData>* server);

    double getDataValue() override;
    bool requestSetNewDataValue(const double& value, DataChangeType type) override;

private:
    ColourData::ComponentID component_;
    ColourSpace space_;
};
