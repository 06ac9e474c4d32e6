#pragma once

#include "ColourFacetAdaptor.h"
#include "core/LightweightString.h"

/// A colour's alpha as a whole number from 0 to 255, rounded half up; text typed in
/// is held to at most 255.
class AlphaTextAdaptor : public ColourFacetAdaptor<LightweightString<wchar_t>> {
public:
    explicit AlphaTextAdaptor(ValServer<ColourData>* server) : ColourFacetAdaptor(server) {}

    LightweightString<wchar_t> getDataValue() override;
    bool requestSetNewDataValue(const LightweightString<wchar_t>& text, DataChangeType type) override;
};
