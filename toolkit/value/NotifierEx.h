#pragma once

#include "GenericNotifier.h"
#include "NotifierEvent.h"

/// The notifier of a value server: fills in the type and the sender of each notice.
template <class T>
class NotifierEx : public GenericNotifier<NotifierEvent<T>> {
public:
    void issueNotification(const NotifierEvent<T>& e, int type) const override {
        if (!this->hasRegistrations()) return;
        NotifierEvent<T> filled = e;
        filled.type = type;
        filled.sender = sender_;
        GenericNotifier<NotifierEvent<T>>::issueNotification(filled, type);
    }

protected:
    void setSender(ValServer<T>* sender) { sender_ = sender; }
    // Fills in the type and the sender of an event the caller made under a ScopedLock.
    void issueHeld(NotifierEvent<T>& e, int type) const {
        e.type = type;
        e.sender = sender_;
        GenericNotifier<NotifierEvent<T>>::issueHeld(e, type);
    }

private:
    ValServer<T>* sender_ = nullptr;
};
