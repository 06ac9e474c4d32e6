#pragma once

#include "core/LightweightString.h"

/// The table of notice types: each name gets a number once, for the process's life.
class NotifyMsgTypeDictionary {
public:
    static NotifyMsgTypeDictionary& instance();
    // The type of a name, made at first ask.
    int typeOf(const LightweightString<char>& name);

    // Registrations under this type hear every notice.
    static constexpr int kAllMsgType = 0;
    const int allMsgType = kAllMsgType;
    // The notice a notifier issues as it is destroyed.
    const int notifierGoneMsgType;

private:
    NotifyMsgTypeDictionary();
};
