#pragma once

#include "NotifyWithDisable.h"

template <class T>
class ValServer;

/// The manager of a value server: sees every value before it is stored.
template <class T>
class ValManagerBase : public NotifyWithDisable {
public:
    // True to accept; the value may be changed through the reference.
    virtual bool requestValChange(ValServer<T>* server, T& value) = 0;
    // The server is going away.
    virtual void releaseServer(ValServer<T>* server) = 0;
};
