#include "ColourComponentAdaptor.h"

#include "core/FloatFromWString.h"
#include "core/WStringFromFloat.h"
#include "core/WStringFromInteger.h"
#include "core/enumFromInt.h"
#include "value/DataConvert.h"

#include <algorithm>

ColourComponentAdaptor::ColourComponentAdaptor(int component, ColourSpace space, ValServer<ColourData>* server)
    : ColourFacetAdaptor(server), component_(static_cast<ColourData::ComponentID>(std::clamp(component, 0, 3))),
      space_(enumFromInt(space, kColourSpaceRGB, kColourSpaceHSV, kColourSpaceRGB)) {}

LightweightString<wchar_t> ColourComponentAdaptor::getDataValue() {
    if (!server()) return L"---";
    ColourData c = colour();
    c.setColourSpace(space_);
    const double v = c.getComponent(component_);
    if (space_ == kColourSpaceHSV) return Zn::WStringFromFloat(component_ == ColourData::kFirst ? v : v * 100.0, 2, false);
    return Zn::WStringFromInteger(DataConvert::truncate<long>(v * 255.0 + 0.5));
}

bool ColourComponentAdaptor::requestSetNewDataValue(const LightweightString<wchar_t>& text, DataChangeType) {
    if (!server()) return false;
    ColourData c = colour();
    const ColourSpace held = c.getColourSpace();
    c.setColourSpace(space_);
    double v = Zn::FloatFromWString(text, 0.0);
    // No lower bound: only the box's restriction to digits keeps values from going negative.
    if (space_ == kColourSpaceRGB)
        v = std::min(v / 255.0, 1.0);
    else if (component_ != ColourData::kFirst)
        v /= 100.0;
    c.setComponent(component_, v);
    c.setColourSpace(held);
    store(c);
    return true;
}
