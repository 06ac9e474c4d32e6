#include "backend/SdlBackend.h"
#include "glob/FileDrag.h"
#include "platform/OS.h"

#include <SDL.h>
#include <gtest/gtest.h>

namespace {
Event translate(const SDL_Event& e) { return SdlBackend::translate(&e, 600); }
} // namespace

TEST(SdlBackend, MouseEventsFlipToBottomUpAndKeepTheirButton) {
    SDL_Event e{};
    e.type = SDL_MOUSEBUTTONDOWN;
    e.button.button = SDL_BUTTON_RIGHT;
    e.button.x = 10;
    e.button.y = 0;
    Event down = translate(e);
    EXPECT_TRUE(mouse_down_event(down) && mouse_right_event(down));
    EXPECT_EQ(down.screenPos(), XY<int>(10, 599));
    e.type = SDL_MOUSEBUTTONUP;
    e.button.button = SDL_BUTTON_MIDDLE;
    e.button.y = 599;
    Event up = translate(e);
    EXPECT_TRUE(mouse_up_event(up) && mouse_chord_event(up));
    EXPECT_EQ(up.screenPos().y, 0);
    // Buttons the toolkit has no use for are dropped rather than passed on as left clicks.
    e.button.button = 7;
    EXPECT_EQ(translate(e).type(), Event::kNone);
    e.type = SDL_MOUSEMOTION;
    e.motion.x = 3;
    e.motion.y = 100;
    EXPECT_EQ(translate(e).screenPos(), XY<int>(3, 499));
    // A move with a button held is part of a drag with that button.
    e.motion.state = SDL_BUTTON_LMASK;
    EXPECT_TRUE(mouse_left_event(translate(e)));
    e.motion.state = SDL_BUTTON_RMASK;
    EXPECT_TRUE(mouse_right_event(translate(e)));
    e.motion.state = 0;
    EXPECT_EQ(translate(e).button(), Event::kNoButton);
}

TEST(SdlBackend, KeysMapToToolkitCodesAndModifiers) {
    SDL_Event e{};
    e.type = SDL_KEYDOWN;
    e.key.keysym.sym = SDLK_LEFT;
    EXPECT_EQ(translate(e).keyCode(), Keys::Left);
    e.key.keysym.sym = SDLK_RETURN;
    EXPECT_EQ(translate(e).keyCode(), Keys::Return);
    e.key.keysym.sym = SDLK_F3;
    EXPECT_EQ(translate(e).keyCode(), Keys::F3);
    e.key.keysym.sym = SDLK_c;
    e.key.keysym.mod = KMOD_LCTRL | KMOD_LSHIFT;
    Event copy = translate(e);
    EXPECT_EQ(copy.keyCode(), 'C' | static_cast<int>(Modifiers::Control | Modifiers::Shift)) << "a letter key is its capital";
    EXPECT_EQ(copy.modifiers(), Modifiers::Control | Modifiers::Shift);
    e.type = SDL_KEYUP;
    EXPECT_EQ(translate(e).type(), Event::kKeyRelease);
    // A key with no toolkit meaning (a media key) gives no event.
    e.key.keysym.sym = SDLK_AUDIOPLAY;
    EXPECT_EQ(translate(e).type(), Event::kNone);
}

TEST(SdlBackend, TypedTextArrivesAsWideText) {
    SDL_Event e{};
    e.type = SDL_TEXTINPUT;
    std::strcpy(e.text.text, "\xC3\xA9t\xC3\xA9");
    Event t = translate(e);
    EXPECT_EQ(t.type(), Event::kTextInput);
    EXPECT_EQ(t.typedText(), L"\u00e9t\u00e9");
    e.type = SDL_FINGERDOWN;
    EXPECT_EQ(translate(e).type(), Event::kNone);
}

TEST(SdlBackend, AnOpenWindowSharesTheClipboardWithTheSystemButOffScreenDragsNoFiles) {
    // SDL's off-screen driver keeps a clipboard of its own, which stands in for the system's.
    setenv("SDL_VIDEODRIVER", "offscreen", 1);
    // A software renderer on an unaccelerated window surface keeps the GL driver
    // out: it leaks on unloading, which the leak checker reports.
    setenv("SDL_RENDER_DRIVER", "software", 1);
    setenv("SDL_FRAMEBUFFER_ACCELERATION", "0", 1);
    {
        SdlBackend backend;
        ASSERT_TRUE(backend.open("clipboard test"));
        OS()->setClipboardText(L"caf\u00e9 \u2192 clip");
        char* system = SDL_GetClipboardText();
        EXPECT_STREQ(system, "caf\xC3\xA9 \xE2\x86\x92 clip");
        SDL_free(system);
        SDL_SetClipboardText("from another program");
        EXPECT_EQ(OS()->getClipboardText(), LightweightString<wchar_t>(L"from another program"));
        EXPECT_FALSE(Glib::dragFilesToOS({L"/tmp/a.mov"})) << "an off-screen window has no drag protocol";
    }
    OS()->setClipboardText(L"in process");
    EXPECT_EQ(OS()->getClipboardText(), LightweightString<wchar_t>(L"in process")) << "the window's clipboard went with it";
    unsetenv("SDL_VIDEODRIVER");
    unsetenv("SDL_RENDER_DRIVER");
    unsetenv("SDL_FRAMEBUFFER_ACCELERATION");
}
