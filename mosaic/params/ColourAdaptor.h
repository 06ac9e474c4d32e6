#pragma once

#include "core/ColourData.h"
#include "core/NormalisedRGB.h"
#include "value/ValAdaptorBase.h"
#include "value/ValClient.h"
#include "value/ValWidget.h"

/// Binds the swatch and picker of a colour row (ColourData) to a colour
/// parameter's server (NormalisedRGB). A colour chosen is stored opaque: a
/// parameter's colour has no alpha of its own. User-interface thread only.
class ColourAdaptor : public ValAdaptorBase<ColourData>, public ValClient<NormalisedRGB> {
public:
    explicit ColourAdaptor(ValServer<NormalisedRGB>* server) : ValClient<NormalisedRGB>(server) {}
    // All zero with no server.
    ColourData getDataValue() override;
    bool requestSetNewDataValue(const ColourData& colour, DataChangeType type) override;
    void valChangedNtfy() override { setNewWidgetValue(getDataValue(), kRedraw); }
};
