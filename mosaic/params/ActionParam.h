#pragma once

#include "Param.h"
#include "core/LightweightVector.h"
#include "core/iCallbackBase.h"

namespace GenericParam {

/// A button in a panel of parameters. Its value stays 0; the server is there so
/// that it fits the list. The callback is given the panel's parameters.
class ActionParam : public Param<unsigned int> {
public:
    /// What the callback of an action is given: the panel's parameters and the action's context.
    struct CallbackData {
        LightweightVector<Zn::Ptr<iParam>>* params = nullptr;
        Zn::Ptr<iObject> context;
    };

    ActionParam(unsigned int value, const LightweightString<char>& id, const UIString& legend, const UIString& tooltip,
                const LightweightString<char>& valueType = "action")
        : Param<unsigned int>(value, id, legend, tooltip, valueType) {}
    Zn::Ptr<iParam> clone() const override { return Zn::Ptr<iParam>(new ActionParam(*this)); }

    // Calls the callback with the parameters; false when there is none.
    bool invoke(LightweightVector<Zn::Ptr<iParam>>* params) {
        if (!callback) return false;
        return callback->execute(CallbackData{params, context});
    }

    Zn::Ptr<iCallbackBase<bool, CallbackData>> callback;
    Zn::Ptr<iObject> context;
    LightweightString<wchar_t> title;

protected:
    ActionParam(const ActionParam& other)
        : Zn::InternalRefCount(), Param<unsigned int>(other), callback(other.callback), context(other.context), title(other.title) {}
};

} // namespace GenericParam
