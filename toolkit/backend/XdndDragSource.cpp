#include "XdndDragSource.h"

#include "core/Utf8.h"

#include <SDL.h>
#include <SDL_syswm.h>
#include <X11/Xatom.h>
#include <X11/Xlib.h>
#include <X11/cursorfont.h>
#include <X11/keysym.h>
#include <poll.h>

#include <algorithm>
#include <chrono>
#include <utility>

namespace {

constexpr long kVersion = 5;
constexpr long kOldestVersion = 3;
// How long a target may take to answer before the drag stops waiting for it.
constexpr auto kReplyTimeout = std::chrono::seconds(3);
// How long the pointer may rest before the drag checks that the button is still down.
constexpr int kIdleCheckMs = 1000;

enum AtomName { kAware, kProxy, kEnter, kPosition, kStatus, kLeave, kDrop, kFinished, kSelection, kActionCopy, kUriList, kTargets, kAtomCount };
const char* kAtomNames[kAtomCount] = {"XdndAware", "XdndProxy",    "XdndEnter",     "XdndPosition",   "XdndStatus",    "XdndLeave",
                                      "XdndDrop",  "XdndFinished", "XdndSelection", "XdndActionCopy", "text/uri-list", "TARGETS"};

// Errors during a drag come from windows that vanish under it, a target that quits:
// no fault of ours, and SDL's own handler would end the program.
int ignoreError(Display*, XErrorEvent*) { return 0; }

Bool toWindow(Display*, XEvent* e, XPointer window) { return e->xany.window == *reinterpret_cast<Window*>(window); }

bool letter(unsigned char c) { return (c >= 'a' && c <= 'z') || (c >= 'A' && c <= 'Z'); }

bool unreserved(unsigned char c) { return letter(c) || (c >= '0' && c <= '9') || c == '-' || c == '.' || c == '_' || c == '~'; }

// A scheme of two or more letters, digits, "+", "-" or "." that begins with a
// letter, then ":" ("https:", "file:"); one letter would be a drive.
bool isUri(const std::string& s) {
    std::size_t colon = s.find(':');
    if (colon == std::string::npos || colon < 2 || !letter(static_cast<unsigned char>(s[0]))) return false;
    return std::all_of(s.begin(), s.begin() + static_cast<long>(colon),
                       [](char c) { return c == '+' || (unreserved(static_cast<unsigned char>(c)) && c != '_' && c != '~'); });
}

} // namespace

std::string XdndDragSource::uriList(const std::vector<LightweightString<wchar_t>>& paths) {
    static const char hex[] = "0123456789ABCDEF";
    std::string out;
    for (const auto& path : paths) {
        std::string s = toUTF8(path).str();
        if (isUri(s)) {
            out += s;
        } else if (!s.empty() && s[0] == '/') {
            out += "file://";
            for (char ch : s) {
                auto c = static_cast<unsigned char>(ch);
                if (unreserved(c) || c == '/') {
                    out += ch;
                } else {
                    out += '%';
                    out += hex[c >> 4];
                    out += hex[c & 15];
                }
            }
        } else {
            continue;
        }
        out += "\r\n";
    }
    return out;
}

// One drag, from the grab to the target's last answer.
struct XdndDragSource::Session {
    using Clock = std::chrono::steady_clock;

    Session(const XdndDragSource& o, std::string list)
        : owner(o), dpy(o.display_), data(std::move(list)), refused(XCreateFontCursor(dpy, XC_circle)), accepting(XCreateFontCursor(dpy, XC_hand2)) {}
    ~Session() {
        if (XGetSelectionOwner(dpy, atom(kSelection)) == owner.source_) XSetSelectionOwner(dpy, atom(kSelection), None, CurrentTime);
        XUngrabKeyboard(dpy, CurrentTime);
        XUngrabPointer(dpy, CurrentTime);
        XUnmapWindow(dpy, owner.source_);
        XFreeCursor(dpy, refused);
        XFreeCursor(dpy, accepting);
    }
    Session(const Session&) = delete; // frees its cursors
    Session& operator=(const Session&) = delete;

    const XdndDragSource& owner;
    Display* dpy;
    std::string data;
    Cursor refused, accepting;

    Window target = None; // the XDND-aware window under the pointer
    Window sendTo = None; // its proxy, or itself
    long version = 0;
    bool waitingStatus = false, positionPending = false, accepted = false;
    bool released = false, dropped = false, done = false, succeeded = false;
    int x = 0, y = 0; // the pointer on the root window
    Time time = CurrentTime;
    Clock::time_point deadline;

    Atom atom(AtomName a) const { return owner.atoms_[a]; }

    long property(Window w, Atom name, Atom type) const {
        Atom actual = None;
        int format = 0;
        unsigned long count = 0, after = 0;
        unsigned char* value = nullptr;
        long result = 0;
        if (XGetWindowProperty(dpy, w, name, 0, 1, False, type, &actual, &format, &count, &after, &value) == Success && value && actual == type &&
            format == 32 && count == 1)
            result = reinterpret_cast<long*>(value)[0];
        if (value) XFree(value);
        return result;
    }

    // The first XDND-aware window on the way down from the root to the pointer.
    Window findTarget(long& targetVersion, Window& proxy) const {
        Window w = owner.root_;
        for (int depth = 0; depth < 64; ++depth) {
            Window child = None;
            int cx = 0, cy = 0;
            if (!XTranslateCoordinates(dpy, owner.root_, w, x, y, &cx, &cy, &child) || child == None || child == owner.window_) return None;
            w = child;
            long v = property(w, atom(kAware), XA_ATOM);
            if (v >= kOldestVersion) {
                targetVersion = std::min(v, kVersion);
                // A proxy counts only when it names itself as proxy too.
                auto p = static_cast<Window>(property(w, atom(kProxy), XA_WINDOW));
                proxy = p && static_cast<Window>(property(p, atom(kProxy), XA_WINDOW)) == p ? p : w;
                return w;
            }
        }
        return None;
    }

    void send(AtomName message, long l1, long l2, long l3, long l4) {
        XEvent e{};
        e.xclient.type = ClientMessage;
        e.xclient.display = dpy;
        e.xclient.window = target;
        e.xclient.message_type = atom(message);
        e.xclient.format = 32;
        long l[5] = {static_cast<long>(owner.source_), l1, l2, l3, l4};
        std::copy(l, l + 5, e.xclient.data.l);
        XSendEvent(dpy, sendTo, False, NoEventMask, &e);
    }

    void showAcceptance() {
        XChangeActivePointerGrab(dpy, ButtonPressMask | ButtonReleaseMask | PointerMotionMask, accepted ? accepting : refused, CurrentTime);
    }

    void sendPosition() {
        send(kPosition, 0, (static_cast<long>(x) << 16) | (y & 0xFFFF), static_cast<long>(time), static_cast<long>(atom(kActionCopy)));
        waitingStatus = true;
        positionPending = false;
        deadline = Clock::now() + kReplyTimeout;
    }

    void leave() {
        if (target) send(kLeave, 0, 0, 0, 0);
        target = None;
    }

    void moveTo(int toX, int toY, Time t) {
        x = toX, y = toY, time = t;
        long v = 0;
        Window proxy = None;
        Window under = findTarget(v, proxy);
        if (under != target) {
            leave();
            target = under, sendTo = proxy, version = v;
            accepted = waitingStatus = positionPending = false;
            if (target) send(kEnter, version << 24, static_cast<long>(atom(kUriList)), 0, 0);
            showAcceptance();
        }
        if (!target) return;
        if (waitingStatus)
            positionPending = true;
        else
            sendPosition();
    }

    // The button is up: drop where the target said yes, else leave it.
    void finish() {
        if (target && accepted) {
            send(kDrop, 0, static_cast<long>(time), 0, 0);
            dropped = true;
            deadline = Clock::now() + kReplyTimeout;
        } else {
            leave();
            done = true;
        }
    }

    void release(Time t) {
        released = true;
        time = t;
        if (!waitingStatus) finish();
    }

    void onMessage(const XClientMessageEvent& m) {
        if (!target || static_cast<Window>(m.data.l[0]) != target) return;
        if (m.message_type == atom(kStatus) && !dropped) {
            waitingStatus = false;
            accepted = m.data.l[1] & 1;
            showAcceptance();
            if (released)
                finish();
            else if (positionPending)
                sendPosition();
        } else if (m.message_type == atom(kFinished) && dropped) {
            succeeded = version < 5 || (m.data.l[1] & 1);
            done = true;
        }
    }

    void answer(const XSelectionRequestEvent& r) {
        XEvent reply{};
        XSelectionEvent& s = reply.xselection;
        s.type = SelectionNotify;
        s.display = dpy;
        s.requestor = r.requestor;
        s.selection = r.selection;
        s.target = r.target;
        s.time = r.time;
        s.property = None;
        // Old requestors name no property and mean the target's name.
        Atom into = r.property ? r.property : r.target;
        long limit = XExtendedMaxRequestSize(dpy) ? XExtendedMaxRequestSize(dpy) : XMaxRequestSize(dpy);
        if (r.selection == atom(kSelection) && r.target == atom(kUriList) && static_cast<long>(data.size()) < limit * 4 - 64) {
            XChangeProperty(dpy, r.requestor, into, atom(kUriList), 8, PropModeReplace, reinterpret_cast<const unsigned char*>(data.data()),
                            static_cast<int>(data.size()));
            s.property = into;
        } else if (r.selection == atom(kSelection) && r.target == atom(kTargets)) {
            Atom offered[] = {atom(kTargets), atom(kUriList)};
            XChangeProperty(dpy, r.requestor, into, XA_ATOM, 32, PropModeReplace, reinterpret_cast<unsigned char*>(offered), 2);
            s.property = into;
        }
        XSendEvent(dpy, r.requestor, False, NoEventMask, &reply);
    }

    void handle(XEvent& e) {
        switch (e.type) {
        case MotionNotify: moveTo(e.xmotion.x_root, e.xmotion.y_root, e.xmotion.time); break;
        case ButtonRelease:
            if (e.xbutton.button == Button1 && !released) {
                x = e.xbutton.x_root, y = e.xbutton.y_root;
                release(e.xbutton.time);
            }
            break;
        case KeyPress:
            if (XLookupKeysym(&e.xkey, 0) == XK_Escape && !dropped) {
                leave();
                done = true;
            }
            break;
        case ClientMessage: onMessage(e.xclient); break;
        case SelectionRequest: answer(e.xselectionrequest); break;
        default: break;
        }
    }

    void checkDeadlines() {
        if (Clock::now() < deadline) return;
        if (dropped) {
            done = true;
        } else if (waitingStatus) {
            waitingStatus = accepted = false;
            if (released) finish();
        }
    }

    bool run() {
        Window source = owner.source_;
        while (!done) {
            XEvent e;
            if (XCheckIfEvent(dpy, &e, toWindow, reinterpret_cast<XPointer>(&source))) {
                handle(e);
                continue;
            }
            checkDeadlines();
            if (done) break;
            pollfd p{ConnectionNumber(dpy), POLLIN, 0};
            int waitMs = released || waitingStatus ? 50 : kIdleCheckMs;
            if (poll(&p, 1, waitMs) == 0 && !released && !buttonHeld()) release(CurrentTime);
        }
        return succeeded;
    }

    // Takes the pointer and keyboard and the selection; false when the button is
    // already up or another program holds the pointer.
    bool holdPointer() {
        XMapRaised(dpy, owner.source_);
        unsigned mask = ButtonPressMask | ButtonReleaseMask | PointerMotionMask;
        if (XGrabPointer(dpy, owner.source_, False, mask, GrabModeAsync, GrabModeAsync, None, refused, CurrentTime) != GrabSuccess) return false;
        Window r = None, c = None;
        int wx = 0, wy = 0;
        unsigned state = 0;
        if (!XQueryPointer(dpy, owner.root_, &r, &c, &x, &y, &wx, &wy, &state) || !(state & Button1Mask)) return false;
        XGrabKeyboard(dpy, owner.source_, False, GrabModeAsync, GrabModeAsync, CurrentTime);
        XSetSelectionOwner(dpy, atom(kSelection), owner.source_, CurrentTime);
        moveTo(x, y, CurrentTime);
        return true;
    }

    // The grab took the button's release from SDL, which would think the button
    // still down and ignore the next press: it gets a release of its own.
    void giveBackRelease() {
        XEvent up{};
        XButtonEvent& b = up.xbutton;
        b.type = ButtonRelease;
        b.display = dpy;
        b.window = owner.window_;
        b.root = owner.root_;
        b.time = time;
        b.x_root = x, b.y_root = y;
        Window child = None;
        XTranslateCoordinates(dpy, owner.root_, owner.window_, x, y, &b.x, &b.y, &child);
        b.state = Button1Mask;
        b.button = Button1;
        b.same_screen = True;
        XPutBackEvent(dpy, &up);
    }

    bool buttonHeld() const {
        Window r = None, c = None;
        int rx = 0, ry = 0, wx = 0, wy = 0;
        unsigned state = 0;
        return XQueryPointer(dpy, owner.root_, &r, &c, &rx, &ry, &wx, &wy, &state) && (state & Button1Mask);
    }
};

std::unique_ptr<XdndDragSource> XdndDragSource::forWindow(SDL_Window* window) {
    SDL_SysWMinfo info;
    SDL_VERSION(&info.version);
    if (!window || !SDL_GetWindowWMInfo(window, &info) || info.subsystem != SDL_SYSWM_X11) return nullptr;
    return std::unique_ptr<XdndDragSource>(new XdndDragSource(info.info.x11.display, info.info.x11.window));
}

XdndDragSource::XdndDragSource(Display* display, unsigned long window) : display_(display), window_(window), atoms_(kAtomCount) {
    XWindowAttributes a;
    root_ = XGetWindowAttributes(display_, window_, &a) ? a.root : DefaultRootWindow(display_);
    XInternAtoms(display_, const_cast<char**>(kAtomNames), kAtomCount, False, atoms_.data());
    XSetWindowAttributes s{};
    s.override_redirect = True;
    source_ = XCreateWindow(display_, root_, -10, -10, 1, 1, 0, 0, InputOnly, nullptr, CWOverrideRedirect, &s);
}

XdndDragSource::~XdndDragSource() {
    XDestroyWindow(display_, source_);
    XFlush(display_);
}

bool XdndDragSource::drag(const std::vector<LightweightString<wchar_t>>& paths) {
    std::string data = uriList(paths);
    if (data.empty()) return false;
    auto previous = XSetErrorHandler(ignoreError);
    bool taken = false;
    {
        Session s(*this, std::move(data));
        if (s.holdPointer()) {
            taken = s.run();
            s.giveBackRelease();
        }
    }
    // Errors that this drag caused arrive before the handler is put back.
    XSync(display_, False);
    XSetErrorHandler(previous);
    return taken;
}
