#pragma once

#include "core/ColourData.h"
#include "value/ValAdaptorBase.h"
#include "value/ValClient.h"
#include "value/ValWidget.h"

/// What the colour adaptors share: each shows one facet of a colour held in a
/// ValServer<ColourData> to widgets of type T, and folds a widget's change of that
/// facet back into the whole colour. A change of the colour, whoever made it,
/// refreshes the widgets at once.
template <class T>
class ColourFacetAdaptor : public ValAdaptorBase<T>, public ValClient<ColourData> {
public:
    explicit ColourFacetAdaptor(ValServer<ColourData>* server) : ValClient<ColourData>(server) {}

    void valChangedNtfy() override { this->setNewWidgetValue(this->getDataValue(), kRedraw); }

protected:
    // The server's colour, or a default one when there is no server.
    ColourData colour() const { return static_cast<ColourData>(*this); }
    // Hands a colour to the server; nothing happens without one.
    void store(const ColourData& c) { ValClient<ColourData>::operator=(c); }
};
