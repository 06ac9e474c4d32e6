#pragma once

#include "core/ColourData.h"
#include "value/ValClient.h"

/// A party interested in one colour: the client side of compound colour widgets,
/// which say themselves what a change of the colour means to them.
class ColourDataValClient : public ValClient<ColourData> {
public:
    ColourDataValClient() = default;
    explicit ColourDataValClient(ValServer<ColourData>* server) : ValClient<ColourData>(server) {}
};
