#pragma once

#include "ColourFacetAdaptor.h"

/// The value (V of HSV) of a colour for a slider from 0 to 1. A change goes back in
/// the colour space that the server's colour had when the adaptor was made.
class LuminanceAdaptor : public ColourFacetAdaptor<double> {
public:
    explicit LuminanceAdaptor(ValServer<ColourData>* server) : ColourFacetAdaptor(server), space_(colour().getColourSpace()) {}

    double getDataValue() override { return colour().getValue(); }
    bool requestSetNewDataValue(const double& value, DataChangeType type) override;

private:
    ColourSpace space_;
};
