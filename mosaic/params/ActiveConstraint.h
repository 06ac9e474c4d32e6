#pragma once

#include "UIBuilder.h"

#include <map>

/// Keeps a row active only while every parameter it depends on holds the text it
/// requires, compared exactly. A condition on an id that no parameter has keeps the
/// row inactive; with no conditions the row is active.
class ActiveConstraint : public UIBuilder::iPostCondition {
public:
    using Conditions = std::map<LightweightString<char>, LightweightString<wchar_t>>;

    // Of two conditions on one id, the first counts.
    ActiveConstraint(const LightweightVector<Zn::AttribValuePair>& conditions, Glob* widget);

    void evaluate(const UIBuilder::ParamList& params) override;
    const Conditions& conditions() const { return conditions_; }

private:
    bool holds(const UIBuilder::ParamList& params) const;

    Glob* widget_;
    Conditions conditions_;
};
