#pragma once

#include "ColourFacetAdaptor.h"
#include "core/LightweightString.h"

/// One component of a colour as text, in a colour space of its own: in HSV the hue
/// in degrees and the others as percentages, each with two decimals; in RGB a whole
/// number from 0 to 255, rounded half up. Text typed in is parsed and scaled back
/// (RGB held to at most 255), and the colour keeps the space it had.
class ColourComponentAdaptor : public ColourFacetAdaptor<LightweightString<wchar_t>> {
public:
    // Components are 0 to 2 and 3 for alpha; a larger number is alpha, a negative one 0.
    ColourComponentAdaptor(int component, ColourSpace space, ValServer<ColourData>* server);

    // "---" with no server.
    LightweightString<wchar_t> getDataValue() override;
    // False, changing nothing, with no server.
    bool requestSetNewDataValue(const LightweightString<wchar_t>& text, DataChangeType type) override;

private:
    ColourData::ComponentID component_;
    ColourSpace space_;
};
