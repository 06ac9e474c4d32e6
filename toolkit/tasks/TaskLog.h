#pragma once

#include "iTaskLog.h"
#include "value/CriticalSection.h"
#include "value/GenericNotifier.h"

#include <vector>

/// The platform's task log: items and progress from any thread. Notices are sent
/// synchronously on the writing thread, under the log's lock, so every listener
/// hears the items once each and in the order the log holds them; a listener
/// that lives on the user-interface thread registers a UIThreadCallback, which
/// carries the notice over, and must not block. Releasing a guard stops delivery
/// at once: once release() has returned no further notice starts on that
/// registration.
class TaskLog : public iTaskLog {
public:
    // The names of the notices.
    static constexpr const char* kItemMsg = "TaskLogItem";
    static constexpr const char* kProgressMsg = "TaskLogProgress";

    TaskLog() = default;
    ~TaskLog() override;
    TaskLog(const TaskLog&) = delete; // listeners are registered with one log

    // Stored with the current indent level, then told to the listeners of items.
    void write(const LightweightString<wchar_t>& text, eOutputType type) override;
    void getItems(std::vector<LoggerBase::Item>& items) const override;
    Zn::Ptr<Zn::Guard> registerInterest(const Zn::Ptr<iCallbackBase<int, NotifyMsg>>& callback, int kind) override;
    Zn::Ptr<Zn::Guard> registerInterest(const Zn::Ptr<iCallbackBase<int, NotifyMsg>>& callback, int kind,
                                        std::vector<LoggerBase::Item>& itemsSoFar) override;
    // Told to the listeners of progress.
    void handleProgressUpdate(const ProgressSnapshot& snapshot) override;

    std::size_t numItems() const;

private:
    GenericNotifier<NotifyMsg>* notifierFor(int kind);

    mutable CriticalSection lock_;
    std::vector<LoggerBase::Item> items_;
    GenericNotifier<NotifyMsg> itemListeners_;
    GenericNotifier<NotifyMsg> progressListeners_;
};
