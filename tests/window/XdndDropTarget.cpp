// xdnd-drop-target OUT X Y W H: a window at X, Y of W by H that takes drops of a
// "text/uri-list" by the X drag-and-drop protocol, as a file manager would. On a drop
// it writes the list it received, byte for byte, to OUT and exits 0. On standard
// output it tells what it hears: "ready" once shown, then "enter VERSION TYPES",
// "leave", "drop", "refused" (the source gave no data, exit 1).
//
// xdnd-drop-target --pointer-free: exits 0 when no program holds the pointer, so a
// script knows that a drag has ended before it presses the button again.
#include <X11/Xatom.h>
#include <X11/Xlib.h>

#include <cstdio>
#include <cstdlib>
#include <string>

namespace {

Display* dpy;
Window self;

Atom atom(const char* name) { return XInternAtom(dpy, name, False); }

std::string typesOf(const XClientMessageEvent& enter) {
    std::string out;
    auto add = [&](Atom a) {
        if (a == None) return;
        char* n = XGetAtomName(dpy, a);
        out += (out.empty() ? "" : ",") + std::string(n ? n : "?");
        if (n) XFree(n);
    };
    if (!(enter.data.l[1] & 1)) {
        for (int i = 2; i < 5; ++i) add(static_cast<Atom>(enter.data.l[i]));
        return out;
    }
    Atom type = None;
    int format = 0;
    unsigned long count = 0, after = 0;
    unsigned char* list = nullptr;
    XGetWindowProperty(dpy, static_cast<Window>(enter.data.l[0]), atom("XdndTypeList"), 0, 64, False, XA_ATOM, &type, &format, &count, &after, &list);
    for (unsigned long i = 0; list && i < count; ++i) add(reinterpret_cast<Atom*>(list)[i]);
    if (list) XFree(list);
    return out;
}

void tell(Window source, const char* message, long l1, long l4) {
    XEvent e{};
    e.xclient.type = ClientMessage;
    e.xclient.window = source;
    e.xclient.message_type = atom(message);
    e.xclient.format = 32;
    e.xclient.data.l[0] = static_cast<long>(self);
    e.xclient.data.l[1] = l1;
    e.xclient.data.l[4] = l4;
    XSendEvent(dpy, source, False, NoEventMask, &e);
    XFlush(dpy);
}

bool pointerFree() {
    Window root = DefaultRootWindow(dpy);
    bool free = XGrabPointer(dpy, root, False, 0, GrabModeAsync, GrabModeAsync, None, None, CurrentTime) == GrabSuccess;
    if (free) XUngrabPointer(dpy, CurrentTime);
    XCloseDisplay(dpy);
    return free;
}

} // namespace

int main(int argc, char** argv) {
    if (argc == 2 && std::string(argv[1]) == "--pointer-free" && (dpy = XOpenDisplay(nullptr))) return pointerFree() ? 0 : 1;
    if (argc != 6 || !(dpy = XOpenDisplay(nullptr))) {
        std::fprintf(stderr, "usage: xdnd-drop-target OUT X Y W H, with a display\n");
        return 2;
    }
    const char* out = argv[1];
    self = XCreateSimpleWindow(dpy, DefaultRootWindow(dpy), std::atoi(argv[2]), std::atoi(argv[3]), static_cast<unsigned>(std::atoi(argv[4])),
                               static_cast<unsigned>(std::atoi(argv[5])), 0, 0, 0x3366aa);
    XStoreName(dpy, self, "XDND drop target");
    long version = 5;
    XChangeProperty(dpy, self, atom("XdndAware"), XA_ATOM, 32, PropModeReplace, reinterpret_cast<unsigned char*>(&version), 1);
    XSelectInput(dpy, self, StructureNotifyMask);
    XMapRaised(dpy, self);
    Atom uriList = atom("text/uri-list"), copy = atom("XdndActionCopy");
    Window source = None;
    bool offered = false;
    for (;;) {
        XEvent e;
        XNextEvent(dpy, &e);
        if (e.type == MapNotify) {
            std::printf("ready\n");
        } else if (e.type == ClientMessage && e.xclient.message_type == atom("XdndEnter")) {
            source = static_cast<Window>(e.xclient.data.l[0]);
            std::string types = typesOf(e.xclient);
            offered = types.find("text/uri-list") != std::string::npos;
            std::printf("enter %ld %s\n", e.xclient.data.l[1] >> 24, types.c_str());
        } else if (e.type == ClientMessage && e.xclient.message_type == atom("XdndPosition")) {
            tell(source, "XdndStatus", offered ? 1 : 0, offered ? static_cast<long>(copy) : 0);
        } else if (e.type == ClientMessage && e.xclient.message_type == atom("XdndLeave")) {
            std::printf("leave\n");
        } else if (e.type == ClientMessage && e.xclient.message_type == atom("XdndDrop")) {
            std::printf("drop\n");
            XConvertSelection(dpy, atom("XdndSelection"), uriList, atom("DROPPED"), self, static_cast<Time>(e.xclient.data.l[2]));
        } else if (e.type == SelectionNotify) {
            Atom type = None;
            int format = 0;
            unsigned long count = 0, after = 0;
            unsigned char* data = nullptr;
            if (e.xselection.property != None)
                XGetWindowProperty(dpy, self, e.xselection.property, 0, 1 << 20, True, AnyPropertyType, &type, &format, &count, &after, &data);
            bool got = data && type == uriList && format == 8;
            if (got) {
                std::FILE* f = std::fopen(out, "wb");
                got = f && std::fwrite(data, 1, count, f) == count;
                if (f) got = std::fclose(f) == 0 && got;
            }
            if (data) XFree(data);
            tell(source, "XdndFinished", got ? 1 : 0, got ? static_cast<long>(copy) : 0);
            if (!got) std::printf("refused\n");
            std::fflush(stdout);
            XCloseDisplay(dpy);
            return got ? 0 : 1;
        }
        std::fflush(stdout);
    }
}
