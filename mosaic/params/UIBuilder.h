#pragma once

#include "GenericParam.h"
#include "core/LightweightVector.h"

#include <map>
#include <vector>

class Glob;

// Turns parameters into rows of widgets in a panel. A builder lives only for the
// call that builds a panel; what stays is the widgets, which the panel owns, and a
// UIBuilder::Params, the live parameters of the panel, which the caller keeps.
class UIBuilder {
public:
    using ParamList = LightweightVector<Zn::Ptr<GenericParam::iParam>>;
    using WidgetMap = std::map<LightweightString<char>, Glob*>;

    // A condition that depends on several parameters, evaluated after every change
    // of any parameter of the panel.
    class iPostCondition : public iObject {
    public:
        virtual void evaluate(const ParamList& params) = 0;
    };
    class Params;

    UIBuilder() = default;
    // The parameter list shares its storage when copied: two builders would fill one list.
    UIBuilder(const UIBuilder&) = delete;
    UIBuilder& operator=(const UIBuilder&) = delete;

    // The first parameter made so far whose id is this text, or null.
    Zn::Ptr<GenericParam::iParam> findParam(const LightweightString<char>& id) const;

protected:
    // Records a finished row: its parameter joins the list in row order, and the row
    // can be found by the parameter's id. A second row for an id leaves the first.
    void recordRow(const Zn::Ptr<GenericParam::iParam>& param, Glob* row);
    void addPostCondition(const Zn::Ptr<iPostCondition>& condition);
    // Hands the parameters, rows and post-conditions to the set that outlives the builder.
    Zn::Ptr<Params> makeParams() const;

private:
    ParamList params_;
    WidgetMap widgets_;
    std::vector<Zn::Ptr<iPostCondition>> postConditions_;
};

#include "UIBuilderParams.h"
