#pragma once

#include "ColourFacetAdaptor.h"

/// A colour's alpha for a slider from 0 to 1.
class AlphaSliderAdaptor : public ColourFacetAdaptor<double> {
public:
    explicit AlphaSliderAdaptor(ValServer<ColourData>* server) : ColourFacetAdaptor(server) {}

    double getDataValue() override { return colour().getComponent(ColourData::kAlpha); }
    bool requestSetNewDataValue(const double& value, DataChangeType) override {
        ColourData c = colour();
        c.setComponent(ColourData::kAlpha, value);
        store(c);
        return true;
    }
};
