#pragma once

#include "core/LightweightString.h"
#include "core/Ptr.h"
#include "core/iObject.h"

class EventHandler;
class Glob;

// Posts a message event to `target`; it arrives later, on the user-interface
// thread, in the order posted. Callable from any thread. A target that has died by
// then does not get it.
void sendMessage(const LightweightString<char>& name, EventHandler* target, iObject* sender = nullptr, bool unused = false);
void sendMessageWithData(const LightweightString<char>& name, EventHandler* target, const Zn::Ptr<iObject>& data, iObject* sender = nullptr);
// Delivers a message event at once; returns what the target's handler returned.
int callMessage(const LightweightString<char>& name, EventHandler* target, iObject* sender = nullptr);
int callMessageWithData(const LightweightString<char>& name, EventHandler* target, const Zn::Ptr<iObject>& data, iObject* sender = nullptr);

// 0 on the user-interface thread, a positive number on any other.
int co_pid();
// Makes the calling thread the user-interface thread; until then it is the
// process's first thread.
void setUIThread();

// Delivers waiting messages and does deferred work, for a long task on the
// user-interface thread that must keep the display alive.
void glob_poll_background_tasks();

void set_kbd_focus(Glob* g);
Glob* get_kbd_focus();
