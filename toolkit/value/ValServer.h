#pragma once

#include "LastValServer.h"
#include "NotifierEx.h"
#include "NotifyMsgTypeDictionary.h"
#include "ValManagerBase.h"
#include "ValServerBase.h"
#include "ValueSlot.h"
#include "core/ColourData.h"
#include "core/LightweightString.h"
#include "core/NormalisedRGB.h"
#include "valEqualsVal.h"

#include <mutex>

/// The one place a value lives. Writing it asks the manager, if any, stores the
/// value and notifies every client in order of registration, on the writer's thread
/// and under the notifier's lock. There is no test for an unchanged value: every
/// assignment notifies.
template <class T>
class ValServer : public NotifierEx<T>, public ValServerBase, private LastValServer {
public:
    ValServer() : ValServer(T()) {}
    explicit ValServer(const T& v) : value_(v) {
        this->setSender(this);
        getLastValServer();
    }
    // A copy has the value and none of the clients or the manager.
    ValServer(const ValServer& other) : ValServer(other.value()) {}

    ~ValServer() override {
        if (manager_) manager_->releaseServer(this);
        manager_ = nullptr;
        NotifierEvent<T> gone;
        gone.value = value();
        this->issueNotification(gone, NotifyMsgTypeDictionary::instance().notifierGoneMsgType);
        this->dropRegistrations();
    }

    virtual ValServer& operator=(const T& v) {
        updateAndNotify(v);
        return *this;
    }
    virtual ValServer& operator=(const ValServer& other) {
        if (&other != this)
            updateAndNotify(other.value());
        else
            updateAndNotify(value());
        return *this;
    }
    virtual bool operator==(const ValServer& other) const { return valEqualsVal(value(), other.value()); }

    void notifyValChanged() override { notify(valChangedMsgType_); }
    void preNotifyValChanged() override { notify(preValChangedMsgType_); }

    // False when the manager refused: the value stays and nobody is told.
    virtual bool updateAndNotify(const T& v) {
        if (!manager_) {
            value_.store(v, this->criticalSection());
        } else {
            typename NotifierBase::ScopedLock g(*this);
            T local = v;
            if (!manager_->requestValChange(this, local)) return false;
            value_.store(local, this->criticalSection());
        }
        notifyValChanged();
        return true;
    }

    T value() const { return value_.load(this->criticalSection()); }
    ValManagerBase<T>* manager() const { return manager_; }
    void setManager(ValManagerBase<T>* m) { manager_ = m; }

private:
    void notify(int type) {
        if (!this->hasRegistrations()) return;
        // The value is read under the lock that delivers it, so that the last notice
        // of writes racing on two threads carries the value that stays.
        typename NotifierBase::ScopedLock g(*this);
        NotifierEvent<T> e;
        e.value = value();
        this->issueHeld(e, type);
    }

    ValueSlot<T> value_;
    ValManagerBase<T>* manager_ = nullptr;
};

extern template class ValServer<bool>;
extern template class ValServer<int>;
extern template class ValServer<unsigned int>;
extern template class ValServer<double>;
extern template class ValServer<LightweightString<wchar_t>>;
extern template class ValServer<ColourData>;
extern template class ValServer<NormalisedRGB>;
