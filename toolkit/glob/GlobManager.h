#pragma once

#include "GlobCreationInfo.h"
#include "GlobHandle.h"
#include "MessageQueue.h"
#include "WidgetPosition.h"

#include <cstdint>
#include <functional>
#include <map>
#include <memory>
#include <vector>

class Canvas;
class Glob;
class InputDispatcher;
class Screen;

/// Keeps the top-level globs and runs the user-interface thread's work: it
/// realizes panels onto the screen in z-order, delivers posted messages, deletes
/// globs at safe moments, ticks timers, routes input, and makes globs by kind name.
class GlobManager {
public:
    using Maker = std::function<Glob*(const GlobCreationInfo&)>;

    static GlobManager& instance();

    // Kinds of glob made by name: each kind registers itself where it is defined.
    static void registerGlobKind(const LightweightString<char>& type, Maker maker);
    static std::vector<LightweightString<char>> globKinds();
    // A new glob of the kind `info.type`, or null when there is no such kind or it failed.
    Glob* createGlob(const GlobCreationInfo& info) const;

    // Puts a finished top-level glob on the screen, on top, and paints it.
    void realize(Glob* g);
    bool isRealized(const Glob* g) const;
    // Deletes the glob at the next safe moment: after the current event, never
    // inside one of its own handlers. Asking twice, or for a dead glob, is harmless.
    void requestDeletion(Glob* g);
    std::size_t pendingDeletions() const { return doomed_.size(); }

    Glob* find(const IdStamp& stamp) const;
    // The first glob, in z-order from the top, whose name (or, failing that, idstring) matches.
    Glob* find(const LightweightString<char>& name) const;
    // The deepest visible glob at a screen point, in the topmost panel there, passing
    // over the panel `beneath` (a tool looking at what lies under itself); null
    // where no panel is.
    Glob* globAt(const XY<int>& screen, const Glob* beneath = nullptr) const;

    // Modal globs: while one is up, input goes only to it and its tree (and to
    // globs raised above it, such as its menus).
    bool isModal(Glob* g) const;
    void addModalGlob(Glob* g, Glob* context = nullptr);
    void removeModalGlob(Glob* g);
    Glob* topModal() const;
    // A modal glob with a context (a panel dropped from a button, say): a press
    // outside it and the globs above it dismisses it. It is deleted at the next
    // safe moment and `context` is posted dismissedMsg, with the glob as sender.
    void addModalContextGlob(Glob* g, Glob* context);
    // Dismisses the top modal glob if it has a context; false when it has none.
    bool dismissModalContext();
    // What the context of a dismissed glob hears; menus tell their owners the same.
    static constexpr const char* dismissedMsg = "menu_poot";

    // Where a new top-level glob of the given size goes: a position asked for, or
    // the next place of a cascade from the top left, kept on the screen.
    XY<int> getPosForGlob(const GlobCreationInfo& info, const WidgetPosition& pos);
    XY<int> getSafePosForGlob(Canvas* c, const XY<int>& pos, const XY<int>& size) const;
    XY<int> calcPosForGlob(const XY<int>& size, const SiblingRelativePosition& rel, const BoxInt& area) const;
    void redisplay(Glob* g, const XY<int>& pos, eCoordinateOrigin origin, bool raise);
    // Places a new top-level glob at `where`, by its own size (cut to the screen's)
    // and on the screen, and shows it.
    void show(Glob* g, const WidgetPosition& where);

    const std::vector<Glob*>& roots() const { return roots_; }
    void raise(Glob* root);
    // Called by Glob: forget every reference to a dying glob.
    void forgetGlob(Glob* g);
    void forgetRoot(Glob* g);

    void setKbdFocus(Glob* g);
    Glob* kbdFocus() const;

    void setTimerInterest(Glob* g, bool on);
    // Sends a timer event to every glob that asked for ticks.
    void tickTimers();
    int timerPeriodMs() const { return timerPeriodMs_; }

    // Messaging: any thread may post; processPending runs on the user-interface thread.
    void post(const Event& e, EventHandler* target);
    // Delivers waiting messages, deletes doomed globs and carries out pending
    // redraws. Returns true when it did anything.
    bool processPending();
    // Loops processPending until nothing is left (bounded, so a glob that posts to
    // itself forever cannot hang the caller).
    void runUntilIdle(int maxRounds = 1000);
    MessageQueue& queue() { return queue_; }

    // Input from the backend or a test, in screen coordinates.
    void dispatch(const Event& e);
    // One watcher of the user that is not a glob (the tooltips): it sees every
    // input event after the globs have, and a timer event after each round of
    // ticks. Another replaces it; an empty function removes it.
    using EventObserver = std::function<void(const Event&)>;
    static void setEventObserver(EventObserver observer);
    InputDispatcher& input() { return *input_; }

    Screen& screen();
    // Marks the screen as needing composition. It needs it too when a top-level
    // canvas was painted outside any redraw (a video frame painted straight into it).
    void screenChanged() { screenDirty_ = true; }
    bool screenDirty() const;
    // Composites the screen when it needs it; says whether it did.
    bool compose();

private:
    GlobManager();
    ~GlobManager();
    void deleteDoomed();
    std::size_t deliverMessages();

    std::vector<Glob*> roots_;
    std::vector<GlobHandle<Glob>> modal_;
    // A modal glob that closes when the user clicks outside it, and who hears of it.
    struct ModalContext {
        GlobHandle<Glob> modal;
        GlobHandle<Glob> context;
    };
    std::vector<ModalContext> contexts_;
    std::vector<GlobHandle<Glob>> doomed_;
    std::vector<Glob*> timerGlobs_;
    MessageQueue queue_;
    std::deque<MessageQueue::Item> delivering_;
    std::unique_ptr<Screen> screen_;
    std::unique_ptr<InputDispatcher> input_;
    XY<int> cascade_;
    int timerPeriodMs_ = 50;
    bool screenDirty_ = true;
    // The generations of the canvases last composited, in layer order.
    std::vector<std::uint64_t> composed_;
};

/// Registers a kind of glob by name at load: a static GlobKindRegistration beside the class.
struct GlobKindRegistration {
    GlobKindRegistration(const char* type, GlobManager::Maker maker) { GlobManager::registerGlobKind(type, std::move(maker)); }
};
