#include "SdlBackend.h"
#include "CursorPicture.h"
#include "XdndDragSource.h"

#include "core/Utf8.h"
#include "draw/Screen.h"
#include "glob/FileDrag.h"
#include "glob/Glob.h"
#include "glob/GlobManager.h"
#include "glob/InputDispatcher.h"
#include "glob/Messaging.h"
#include "glob/glib_setCursor.h"
#include "platform/OS.h"

#include <SDL.h>

#include <chrono>
#include <iterator>
#include <type_traits>

struct SdlBackend::Impl {
    SDL_Window* window = nullptr;
    SDL_Renderer* renderer = nullptr;
    SDL_Texture* texture = nullptr;
    int texW = 0, texH = 0;
    // By MouseCursorID, from kCursorArrow on.
    SDL_Cursor* cursors[kCursorEyeDropper - kCursorArrow + 1] = {};
    MouseCursorID cursor = kCursorArrow;
    std::unique_ptr<XdndDragSource> fileDrag;
    std::chrono::steady_clock::time_point nextTick = std::chrono::steady_clock::now();
};

namespace {

// A cursor from its drawn picture, or null for one the system draws (or when SDL
// cannot make it, and the system's stand-in is used).
SDL_Cursor* makeCursor(MouseCursorID id) {
    const auto picture = CursorPicture::draw(id);
    if (!picture) return nullptr;
    // SDL copies the pixels into the cursor, so the surface may go at once.
    SDL_Surface* surface = SDL_CreateRGBSurfaceWithFormatFrom(const_cast<std::uint32_t*>(picture->pixels().data()), CursorPicture::kSize,
                                                              CursorPicture::kSize, 32, CursorPicture::kSize * 4, SDL_PIXELFORMAT_ARGB8888);
    if (!surface) return nullptr;
    SDL_Cursor* cursor = SDL_CreateColorCursor(surface, picture->hotspot().x, picture->hotspot().y);
    SDL_FreeSurface(surface);
    return cursor;
}

int mapKey(SDL_Keycode k) {
    switch (k) {
    case SDLK_LEFT: return Keys::Left;
    case SDLK_RIGHT: return Keys::Right;
    case SDLK_UP: return Keys::Up;
    case SDLK_DOWN: return Keys::Down;
    case SDLK_HOME: return Keys::Home;
    case SDLK_END: return Keys::End;
    case SDLK_PAGEUP: return Keys::PageUp;
    case SDLK_PAGEDOWN: return Keys::PageDown;
    case SDLK_INSERT: return Keys::Insert;
    case SDLK_KP_ENTER: return Keys::KeypadEnter;
    case SDLK_RETURN: return Keys::Return;
    case SDLK_ESCAPE: return Keys::Escape;
    case SDLK_BACKSPACE: return Keys::Backspace;
    case SDLK_TAB: return Keys::Tab;
    case SDLK_DELETE: return Keys::Delete;
    default: break;
    }
    if (k >= SDLK_F1 && k <= SDLK_F10) return Keys::F1 + (k - SDLK_F1);
    if (k == SDLK_F11) return Keys::F11;
    if (k == SDLK_F12) return Keys::F12;
    // Printable keys: SDL names them by their Unicode value, letters in lower case.
    if (k >= SDLK_a && k <= SDLK_z) return static_cast<int>(k - SDLK_a + 'A');
    return (k & SDLK_SCANCODE_MASK) || k >= Keys::CharacterLimit ? 0 : static_cast<int>(k);
}

unsigned mapModifiers(Uint16 m) {
    unsigned r = 0;
    if (m & KMOD_SHIFT) r |= Modifiers::Shift;
    if (m & KMOD_CTRL) r |= Modifiers::Control;
    if (m & KMOD_ALT) r |= Modifiers::Alt;
    if (m & KMOD_GUI) r |= Modifiers::Cmd;
    return r;
}

Event::Button mapButton(Uint8 b) {
    switch (b) {
    case SDL_BUTTON_LEFT: return Event::kLeft;
    case SDL_BUTTON_MIDDLE: return Event::kMiddle;
    case SDL_BUTTON_RIGHT: return Event::kRight;
    default: return Event::kNoButton;
    }
}

} // namespace

SdlBackend::SdlBackend() : impl_(std::make_unique<Impl>()) {}

void SdlBackend::installSystemClipboard() {
    // Text copied in the editor reaches other programs, and theirs reaches text boxes.
    OS()->installClipboard([](const LightweightString<wchar_t>& text) { SDL_SetClipboardText(toUTF8(text).c_str()); },
                           [] {
                               char* text = SDL_GetClipboardText();
                               LightweightString<wchar_t> out = fromUTF8(text ? text : "");
                               SDL_free(text);
                               return out;
                           });
}

void SdlBackend::installFileDrag() {
    // Only X11 has a drag protocol here; elsewhere files are not dragged out.
    impl_->fileDrag = XdndDragSource::forWindow(impl_->window);
    if (XdndDragSource* source = impl_->fileDrag.get())
        Glib::setFileDragHandler([source](const std::vector<LightweightString<wchar_t>>& paths) { return source->drag(paths); });
}

SdlBackend::~SdlBackend() {
    // The window's clipboard goes with the window; the in-process one takes over.
    if (impl_->window) OS()->installClipboard({}, {});
    if (impl_->fileDrag) Glib::setFileDragHandler({});
    impl_->fileDrag.reset();
    for (SDL_Cursor* c : impl_->cursors)
        if (c) SDL_FreeCursor(c);
    if (impl_->texture) SDL_DestroyTexture(impl_->texture);
    if (impl_->renderer) SDL_DestroyRenderer(impl_->renderer);
    if (impl_->window) {
        SDL_DestroyWindow(impl_->window);
        SDL_Quit();
    }
}

bool SdlBackend::displayAvailable() {
    if (!SDL_getenv("DISPLAY") && !SDL_getenv("WAYLAND_DISPLAY")) return false;
    if (SDL_InitSubSystem(SDL_INIT_VIDEO) != 0) return false;
    SDL_QuitSubSystem(SDL_INIT_VIDEO);
    return true;
}

const char* SdlBackend::lastError() { return SDL_GetError(); }

bool SdlBackend::isOpen() const { return impl_->window != nullptr; }

bool SdlBackend::open(const char* title) {
    if (impl_->window) return true;
    if (SDL_Init(SDL_INIT_VIDEO) != 0) return false;
    Screen& screen = GlobManager::instance().screen();
    impl_->window = SDL_CreateWindow(title, SDL_WINDOWPOS_CENTERED, SDL_WINDOWPOS_CENTERED, screen.width(), screen.height(), SDL_WINDOW_RESIZABLE);
    if (!impl_->window) {
        SDL_Quit();
        return false;
    }
    impl_->renderer = SDL_CreateRenderer(impl_->window, -1, 0);
    if (!impl_->renderer) impl_->renderer = SDL_CreateRenderer(impl_->window, -1, SDL_RENDERER_SOFTWARE);
    // SDL has no cursors of its own for dragging a marker or picking a colour: those
    // are drawn here.
    static const SDL_SystemCursor shapes[] = {SDL_SYSTEM_CURSOR_ARROW,   SDL_SYSTEM_CURSOR_IBEAM,    SDL_SYSTEM_CURSOR_CROSSHAIR,
                                              SDL_SYSTEM_CURSOR_SIZEALL, SDL_SYSTEM_CURSOR_HAND,     SDL_SYSTEM_CURSOR_HAND,
                                              SDL_SYSTEM_CURSOR_SIZEWE,  SDL_SYSTEM_CURSOR_SIZENS,   SDL_SYSTEM_CURSOR_WAIT,
                                              SDL_SYSTEM_CURSOR_NO,      SDL_SYSTEM_CURSOR_CROSSHAIR};
    static_assert(std::size(shapes) == std::extent_v<decltype(Impl::cursors)>);
    for (std::size_t i = 0; i < std::size(shapes); ++i) {
        const auto id = static_cast<MouseCursorID>(kCursorArrow + static_cast<int>(i));
        impl_->cursors[i] = makeCursor(id);
        if (!impl_->cursors[i]) impl_->cursors[i] = SDL_CreateSystemCursor(shapes[i]);
    }
    SDL_StartTextInput();
    installSystemClipboard();
    installFileDrag();
    setUIThread();
    GlobManager::instance().screenChanged();
    return impl_->renderer != nullptr;
}

Event SdlBackend::translate(const void* raw, int screenHeight) {
    const SDL_Event& e = *static_cast<const SDL_Event*>(raw);
    auto at = [screenHeight](int x, int y) { return XY<int>(x, screenHeight - 1 - y); };
    switch (e.type) {
    case SDL_MOUSEMOTION: {
        // A move with a button held says which, as a drag's moves do.
        const Uint32 held = e.motion.state;
        const Event::Button button = (held & SDL_BUTTON_LMASK)   ? Event::kLeft
                                     : (held & SDL_BUTTON_RMASK) ? Event::kRight
                                     : (held & SDL_BUTTON_MMASK) ? Event::kMiddle
                                                                 : Event::kNoButton;
        return Event::mouse(Event::kMouseMove, at(e.motion.x, e.motion.y), button, mapModifiers(SDL_GetModState()));
    }
    case SDL_MOUSEBUTTONDOWN:
    case SDL_MOUSEBUTTONUP: {
        Event m = Event::mouse(e.type == SDL_MOUSEBUTTONDOWN ? Event::kMouseDown : Event::kMouseUp, at(e.button.x, e.button.y),
                               mapButton(e.button.button), mapModifiers(SDL_GetModState()));
        return m.button() == Event::kNoButton ? Event() : m;
    }
    case SDL_MOUSEWHEEL: {
        int x = 0, y = 0;
        SDL_GetMouseState(&x, &y);
        return Event::wheel(at(x, y), e.wheel.y, mapModifiers(SDL_GetModState()));
    }
    case SDL_KEYDOWN:
    case SDL_KEYUP: {
        int key = mapKey(e.key.keysym.sym);
        if (!key) return Event();
        return Event::key(e.type == SDL_KEYDOWN ? Event::kKeyPress : Event::kKeyRelease, key, mapModifiers(e.key.keysym.mod));
    }
    case SDL_TEXTINPUT: return Event::text(fromUTF8(e.text.text));
    default: return Event();
    }
}

void SdlBackend::handle(const void* raw) {
    const SDL_Event& e = *static_cast<const SDL_Event*>(raw);
    GlobManager& gm = GlobManager::instance();
    if (e.type == SDL_QUIT) {
        quitting_ = true;
        return;
    }
    if (e.type == SDL_WINDOWEVENT && e.window.event == SDL_WINDOWEVENT_SIZE_CHANGED) {
        gm.screen().resize(e.window.data1, e.window.data2);
        gm.screenChanged();
        return;
    }
    if (e.type == SDL_WINDOWEVENT && e.window.event == SDL_WINDOWEVENT_EXPOSED) {
        gm.screenChanged();
        return;
    }
    Event t = translate(&e, gm.screen().height());
    if (t.type() != Event::kNone) gm.dispatch(t);
}

void SdlBackend::updateCursor() {
    Glob* hover = GlobManager::instance().input().hover();
    MouseCursorID id = hover ? hover->contextCursor(hover->screenXYToGlobXY(GlobManager::instance().input().mousePos())) : kCursorArrow;
    if (auto forced = glib_forcedCursor()) id = *forced;
    if (id == impl_->cursor || id < kCursorArrow || id > kCursorEyeDropper) return;
    impl_->cursor = id;
    if (SDL_Cursor* c = impl_->cursors[id - kCursorArrow]) SDL_SetCursor(c);
}

void SdlBackend::present() {
    GlobManager& gm = GlobManager::instance();
    if (!gm.compose()) return;
    Screen& s = gm.screen();
    if (!impl_->texture || impl_->texW != s.width() || impl_->texH != s.height()) {
        if (impl_->texture) SDL_DestroyTexture(impl_->texture);
        impl_->texture = SDL_CreateTexture(impl_->renderer, SDL_PIXELFORMAT_ARGB8888, SDL_TEXTUREACCESS_STREAMING, s.width(), s.height());
        impl_->texW = s.width();
        impl_->texH = s.height();
    }
    if (!impl_->texture) return;
    SDL_UpdateTexture(impl_->texture, nullptr, s.data(), s.stride());
    SDL_RenderClear(impl_->renderer);
    SDL_RenderCopy(impl_->renderer, impl_->texture, nullptr, nullptr);
    SDL_RenderPresent(impl_->renderer);
}

void SdlBackend::runOnce(int waitMs) {
    SDL_Event e;
    if (SDL_WaitEventTimeout(&e, waitMs)) {
        handle(&e);
        while (SDL_PollEvent(&e)) handle(&e);
    }
    GlobManager& gm = GlobManager::instance();
    auto now = std::chrono::steady_clock::now();
    if (now >= impl_->nextTick) {
        gm.tickTimers();
        impl_->nextTick = now + std::chrono::milliseconds(gm.timerPeriodMs());
    }
    // After the ticks, so that what they changed is painted before it is shown.
    gm.processPending();
    updateCursor();
    present();
}

void SdlBackend::run(bool untilNoGlobs) {
    if (!isOpen()) return;
    quitting_ = false;
    while (!quitting_) {
        runOnce(10);
        if (untilNoGlobs && GlobManager::instance().roots().empty()) break;
    }
}
