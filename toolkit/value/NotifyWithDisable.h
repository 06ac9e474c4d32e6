#pragma once

#include "Notifier.h"

/// A notifier that others reach through getNotify(), so that a class can hand out
/// a notifier of its own choosing.
class NotifyWithDisable : public Notifier {
public:
    virtual NotifyWithDisable* getNotify() { return this; }
};
