#pragma once

#include "ParamTestSupport.h"
#include "core/FunctionCallback.h"
#include "core/Utf8.h"
#include "params/UIBuilderParams.h"

#include <string>
#include <vector>

// A builder whose recording is open to tests, listeners that keep what they heard,
// and a post-condition that keeps what it saw, for the parameter set tests.
namespace UIBuilderParamsTestSupport {

class TestBuilder : public UIBuilder {
public:
    using UIBuilder::addPostCondition;
    using UIBuilder::makeParams;
    using UIBuilder::recordRow;
};

inline UIBuilder::Params::Listener listenerInto(std::vector<std::string>& journal, const std::string& prefix = "") {
    return UIBuilder::Params::Listener(
        new FunctionCallback<NotifyMsg, int>(std::function<int(const NotifyMsg&)>([&journal, prefix](const NotifyMsg& m) {
            journal.push_back(prefix + m.name().str() + (m.data() ? "+payload" : ""));
            return 0;
        })));
}

// Records "evaluate" and, per evaluation, each parameter as id=value.
class Snapshot : public UIBuilder::iPostCondition {
public:
    explicit Snapshot(std::vector<std::string>& journal) : journal_(journal) {}
    void evaluate(const UIBuilder::ParamList& params) override {
        journal_.push_back("evaluate");
        std::string s;
        for (const auto& p : params) s += (s.empty() ? "" : " ") + p->getID().str() + "=" + toUTF8(p->getValueAsString()).str();
        seen.push_back(s);
    }
    std::vector<std::string> seen;

private:
    std::vector<std::string>& journal_;
};

template <class P, class... Args>
Zn::Ptr<GenericParam::iParam> make(Args&&... args) {
    return Zn::Ptr<GenericParam::iParam>(new P(std::forward<Args>(args)...));
}

template <class T>
GenericParam::Param<T>& as(const Zn::Ptr<GenericParam::iParam>& p) {
    return dynamic_cast<GenericParam::Param<T>&>(*p);
}

} // namespace UIBuilderParamsTestSupport
