#include "UIBuilderParams.h"

#include "ChangeBroadcaster.h"
#include "ParamBoundConstraint.h"
#include "core/MethodCallback.h"
#include "core/Utf8.h"

using GenericParam::ActionParam;
using GenericParam::iParam;

UIBuilder::Params::Params(const ParamList& params, const WidgetMap& widgets, const std::vector<Zn::Ptr<iPostCondition>>& postConditions)
    : params_(params), widgets_(widgets), postConditions_(postConditions) {
    Listener callback(new MethodCallback<Params, NotifyMsg, int>(this, &Params::handleParameterModification));
    for (const auto& param : params_) {
        if (!param) continue;
        Zn::Ptr<ChangeBroadcaster> broadcaster(new ChangeBroadcaster(callback));
        broadcasters_.push_back(broadcaster);
        param->addChangeHandler(broadcaster);
    }
}

UIBuilder::Params::~Params() {
    for (const auto& broadcaster : broadcasters_) broadcaster->disconnect();
    releaseBounds();
}

// Two parameters bounded by each other hold each other; the set is their owner, so
// it breaks the loop as it goes, or neither would ever be freed.
void UIBuilder::Params::releaseBounds() {
    for (const auto& param : params_) {
        auto* base = dynamic_cast<GenericParam::ParamBase*>(param.get());
        if (!base) continue;
        for (const auto& constraint : base->valueConstraints())
            if (auto bound = Zn::dynamicCast<ParamBoundConstraint>(constraint)) bound->release();
    }
}

Zn::Ptr<UIBuilder::Params> UIBuilder::Params::keepAlive() {
    // A set not yet held by any Zn::Ptr would be deleted when the keeper lets go.
    return refCount() > 0 ? Zn::Ptr<Params>(this) : nullptr;
}

void UIBuilder::Params::addListener(const Listener& listener) {
    if (listener) listeners_.push_back(listener);
}

int UIBuilder::Params::handleParameterModification(const NotifyMsg& message) {
    if (!notifying_) return 0;
    Zn::Ptr<Params> keep = keepAlive();
    for (const auto& condition : postConditions_)
        if (condition) condition->evaluate(params_);
    // By index: a listener may add another while it is told.
    for (std::size_t i = 0; i < listeners_.size(); ++i) {
        Listener listener = listeners_[i];
        listener->execute(message);
    }
    return 0;
}

int UIBuilder::Params::handleActionParam(const NotifyMsg& message) {
    Zn::Ptr<ActionParam> action = message.dataAs<ActionParam>();
    if (!action) return 0;
    Zn::Ptr<Params> keep = keepAlive();
    notifying_ = false;
    const bool changed = action->invoke(&params_);
    notifying_ = true;
    if (changed) handleParameterModification(message);
    return 0;
}

void UIBuilder::Params::saveState(configb& config) const {
    config.clear();
    for (const auto& param : params_)
        if (param) config.set(param->getID(), ConfigEntryT(param->getValueType(), toUTF8(param->getValueAsString())));
}

void UIBuilder::Params::restoreState(const configb& config) {
    Zn::Ptr<Params> keep = keepAlive();
    for (std::size_t i = 0; i < params_.size(); ++i) {
        Zn::Ptr<iParam> param = params_[i];
        ConfigEntryT entry;
        if (param && config.in(param->getID(), entry) == 0) param->setValueFromString(fromUTF8(entry.value));
    }
}

Glob* UIBuilder::Params::getWidget(const LightweightString<char>& id) const {
    auto it = widgets_.find(id);
    return it == widgets_.end() ? nullptr : it->second;
}
