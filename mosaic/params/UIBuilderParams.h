#pragma once

#include "UIBuilder.h"
#include "core/NotifyMsg.h"
#include "core/iCallbackBase.h"
#include "platform/configb.h"

class ChangeBroadcaster;

/// The live parameters of a built panel, with their rows by id: the one place where
/// the changes of all its parameters meet. After each change it evaluates every
/// post-condition and then tells its listeners, at once, on the thread that made the
/// change. It runs the panel's actions, and saves the values to a configb and
/// restores them.
///
/// The parameters do not keep the set alive; their broadcasters point back at it,
/// and are cut off when it dies. The caller keeps the set for as long as the panel
/// can change. The rows belong to the panel; a row that has died is left alone.
class UIBuilder::Params : public iObject {
public:
    using Listener = Zn::Ptr<iCallbackBase<int, NotifyMsg>>;

    Params(const ParamList& params, const WidgetMap& widgets, const std::vector<Zn::Ptr<iPostCondition>>& postConditions);
    ~Params() override;
    // Every parameter's broadcaster points at this one set.
    Params(const Params&) = delete;
    Params& operator=(const Params&) = delete;

    // A listener hears the id of each changed parameter as the name of a message
    // with no payload, and lasts as long as the set. One whose target may die is
    // made with makeDeferredCallback.
    void addListener(const Listener& listener);

    // Evaluates the post-conditions, then tells the listeners; silent while an action runs.
    int handleParameterModification(const NotifyMsg& message);
    // The callback of an action's button: runs the ActionParam in the payload with
    // the panel's parameters, and tells the listeners once afterwards, with this
    // message, if the action says it changed something.
    int handleActionParam(const NotifyMsg& message);

    // The store afterwards holds this panel's values only, one entry per id.
    void saveState(configb& config) const;
    // Each value found is set as if the user had set it, in row order, so a bound to
    // a parameter that is restored later holds against that parameter's old value.
    void restoreState(const configb& config);

    const ParamList& params() const { return params_; }
    const WidgetMap& widgets() const { return widgets_; }
    // The row of the parameter with this id, or null.
    Glob* getWidget(const LightweightString<char>& id) const;

private:
    // A listener or action may drop the owner's last reference to the set while it runs.
    Zn::Ptr<Params> keepAlive();
    void releaseBounds();

    ParamList params_;
    WidgetMap widgets_;
    std::vector<Zn::Ptr<iPostCondition>> postConditions_;
    std::vector<Listener> listeners_;
    bool notifying_ = true;
    std::vector<Zn::Ptr<ChangeBroadcaster>> broadcasters_;
};
