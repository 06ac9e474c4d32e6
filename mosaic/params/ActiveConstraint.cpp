#include "ActiveConstraint.h"

#include "core/Utf8.h"
#include "glob/Glob.h"

ActiveConstraint::ActiveConstraint(const LightweightVector<Zn::AttribValuePair>& conditions, Glob* widget) : widget_(widget) {
    for (const auto& condition : conditions) conditions_.emplace(condition.name(), fromUTF8(condition.value()));
}

void ActiveConstraint::evaluate(const UIBuilder::ParamList& params) {
    if (!is_good_glob_ptr(widget_)) return;
    widget_->setActive(holds(params), kRedraw);
}

bool ActiveConstraint::holds(const UIBuilder::ParamList& params) const {
    for (const auto& [id, required] : conditions_) {
        const GenericParam::iParam* found = nullptr;
        for (const auto& param : params) {
            if (param && param->getID() == id) {
                found = param.get();
                break;
            }
        }
        if (!found || found->getValueAsString() != required) return false;
    }
    return true;
}
