#include "UIBuilder.h"

using GenericParam::iParam;

Zn::Ptr<iParam> UIBuilder::findParam(const LightweightString<char>& id) const {
    for (const auto& param : params_)
        if (param && param->getID() == id) return param;
    return nullptr;
}

void UIBuilder::recordRow(const Zn::Ptr<iParam>& param, Glob* row) {
    if (!param) return;
    params_.push_back(param);
    widgets_.emplace(param->getID(), row);
}

void UIBuilder::addPostCondition(const Zn::Ptr<iPostCondition>& condition) {
    if (condition) postConditions_.push_back(condition);
}

Zn::Ptr<UIBuilder::Params> UIBuilder::makeParams() const { return Zn::makePtr<Params>(params_, widgets_, postConditions_); }
