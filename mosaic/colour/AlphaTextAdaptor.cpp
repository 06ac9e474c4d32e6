#include "AlphaTextAdaptor.h"

#include "core/FloatFromWString.h"
#include "core/WStringFromInteger.h"
#include "value/DataConvert.h"

#include <algorithm>

LightweightString<wchar_t> AlphaTextAdaptor::getDataValue() {
    return Zn::WStringFromInteger(DataConvert::truncate<long>(255.0 * colour().getAlpha() + 0.5));
}

bool AlphaTextAdaptor::requestSetNewDataValue(const LightweightString<wchar_t>& text, DataChangeType) {
    ColourData c = colour();
    c.setAlpha(std::min(Zn::FloatFromWString(text, 0.0) / 255.0, 1.0));
    store(c);
    return true;
}
