#include "Messaging.h"

#include "EventHandler.h"
#include "GlobManager.h"
#include "core/Assert.h"

#include <atomic>
#include <thread>
#include <unistd.h>

namespace {

std::atomic<std::thread::id> uiThread{};

Event messageFrom(const LightweightString<char>& name, iObject* sender, const Zn::Ptr<iObject>& data) {
    auto* handler = dynamic_cast<EventHandler*>(sender);
    return Event::message(name, handler, handler ? handler->stamp() : IdStamp(), data);
}

} // namespace

void setUIThread() { uiThread.store(std::this_thread::get_id()); }

int co_pid() {
    std::thread::id ui = uiThread.load();
    // Unless told otherwise, the process's first thread is the user-interface thread.
    // A thread does not change, so the system is asked once per thread.
    thread_local const bool firstThread = gettid() == getpid();
    bool onUI = ui == std::thread::id() ? firstThread : std::this_thread::get_id() == ui;
    if (onUI) return 0;
    static std::atomic<int> next{1};
    thread_local int id = next++;
    return id;
}

bool onUIThread() {
    const bool on = co_pid() == 0;
    MOSAIC_ASSERT(on, "a user-interface operation called off the user-interface thread");
    return on;
}

void sendMessage(const LightweightString<char>& name, EventHandler* target, iObject* sender, bool) { sendMessageWithData(name, target, {}, sender); }

void sendMessageWithData(const LightweightString<char>& name, EventHandler* target, const Zn::Ptr<iObject>& data, iObject* sender) {
    if (!target) return;
    GlobManager::instance().post(messageFrom(name, sender, data), target);
}

int callMessage(const LightweightString<char>& name, EventHandler* target, iObject* sender) { return callMessageWithData(name, target, {}, sender); }

int callMessageWithData(const LightweightString<char>& name, EventHandler* target, const Zn::Ptr<iObject>& data, iObject* sender) {
    if (!onUIThread() || !EventHandler::isLive(target)) return 0;
    return target->handleEvent(messageFrom(name, sender, data));
}

void glob_poll_background_tasks() { GlobManager::instance().processPending(); }

void set_kbd_focus(Glob* g) { GlobManager::instance().setKbdFocus(g); }

Glob* get_kbd_focus() { return GlobManager::instance().kbdFocus(); }
