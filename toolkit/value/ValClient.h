#pragma once

#include "EnableDisable.h"
#include "ValServer.h"
#include "core/MethodCallback.h"

/// One party interested in a value server: hears of its changes, reads it and
/// writes it. A client outlives its server safely: it then has none.
template <class T>
class ValClient : public EnableDisable {
public:
    ValClient() = default;
    explicit ValClient(ValServer<T>* server) { ValClient::registerWith(server); }
    ValClient(const ValClient&) = delete; // a registration belongs to one client
    ValClient& operator=(const ValClient&) = delete;
    ~ValClient() override = default;

    virtual void registerWith(ValServer<T>* server) {
        if (server == server_) return;
        server_ = server;
        if (!server) {
            guard_.reset();
            return;
        }
        Zn::Ptr<iCallbackBase<int, NotifierEvent<T>>> cb(new MethodCallback<ValClient, NotifierEvent<T>, int>(this, &ValClient::handleValueChange));
        guard_ = server->registerCallback(cb, NotifyMsgTypeDictionary::instance().allMsgType);
    }
    virtual void valChangedNtfy() = 0;
    virtual void valPreChangedNtfy() {}

    ValServer<T>* server() const { return server_; }
    // The server's value; a default value when there is no server.
    operator T() const { return server_ ? server_->value() : T(); }
    // Writes through the server and gives what it then holds, which the manager may
    // have changed. With no server, gives `v` back and does nothing.
    T operator=(const T& v) {
        if (!server_) return v;
        server_->updateAndNotify(v);
        return server_->value();
    }

    int handleValueChange(const NotifierEvent<T>& e) {
        if (e.type == ValServerBase::valChangedMsgType_) {
            if (isEnabled()) valChangedNtfy();
        } else if (e.type == ValServerBase::preValChangedMsgType_) {
            if (isEnabled()) valPreChangedNtfy();
        } else if (e.type == NotifyMsgTypeDictionary::instance().notifierGoneMsgType) {
            guard_.reset();
            server_ = nullptr;
        }
        return 0;
    }

private:
    Zn::Ptr<Zn::Guard> guard_;
    ValServer<T>* server_ = nullptr;
};
