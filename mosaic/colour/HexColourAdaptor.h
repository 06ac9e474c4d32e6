#pragma once

#include "ColourFacetAdaptor.h"
#include "core/LightweightString.h"

/// A colour as six hexadecimal digits, red, green and blue: "7F7F7F". Each byte is
/// the component truncated (where the component boxes round), so red 0.5 shows as
/// 7F here and 128 there. A shorter text has zeros put in front ("abc" is 000ABC),
/// only the first six digits count, and a new text makes the colour RGB, keeping
/// its alpha.
class HexColourAdaptor : public ColourFacetAdaptor<LightweightString<wchar_t>> {
public:
    explicit HexColourAdaptor(ValServer<ColourData>* server) : ColourFacetAdaptor(server) {}

    LightweightString<wchar_t> getDataValue() override;
    bool requestSetNewDataValue(const LightweightString<wchar_t>& text, DataChangeType type) override;
};
