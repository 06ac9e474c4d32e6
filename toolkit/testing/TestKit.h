#pragma once

#include "core/Event.h"
#include "glob/Glob.h"

#include <gtest/gtest.h>

#include <cstdint>
#include <string>

class iHostImage;

// Drives the toolkit headless in tests: pumps the event loop, injects input at
// screen coordinates, reads painted pixels, and saves the screen as a PNG when a
// pixel assertion fails (into $MOSAIC_TEST_OUTPUT, or the working folder).
namespace TestKit {

// Delivers messages, deletions and redraws until nothing is left, then composes the screen.
void pump();
// Deletes every top-level glob and clears pending work, so that tests do not see each other.
void reset();

void mouseMove(XY<int> screen, unsigned modifiers = 0);
void mouseDown(XY<int> screen, Event::Button button = Event::kLeft, unsigned modifiers = 0);
void mouseUp(XY<int> screen, Event::Button button = Event::kLeft, unsigned modifiers = 0);
void click(XY<int> screen, Event::Button button = Event::kLeft, unsigned modifiers = 0);
void drag(XY<int> from, XY<int> to, int steps = 4);
void wheel(XY<int> screen, int delta);
void pressKey(int keyCode, unsigned modifiers = 0);
void typeText(const LightweightString<wchar_t>& text);

// Puts a new top-level glob on the screen with its bottom left at `at`; returns it.
void realizeAt(Glob* g, XY<int> at);
template <class T>
T* realize(T* g, XY<int> at = {100, 100}) {
    realizeAt(g, at);
    return g;
}

// The screen point of a point in a glob's own coordinates.
XY<int> screenPointOf(const Glob* g, XY<int> local);
// The centre of a glob on the screen.
XY<int> centreOf(const Glob* g);

// 0xAARRGGBB of a pixel of the composed screen, and of a glob's canvas in its own coordinates.
std::uint32_t screenPixel(int x, int y);
std::uint32_t globPixel(const Glob* g, int x, int y);
// The colour as 0xAARRGGBB, as a canvas stores it.
std::uint32_t argb(const Colour& c);

// True when red, green and blue of the two 0xAARRGGBB values each differ by at most
// `tolerance`; alpha is left aside. Unlike pixelNear it writes nothing on a mismatch.
bool similar(std::uint32_t a, std::uint32_t b, int tolerance);
// How many pixels of `box` (the glob's coordinates) have red, green and blue each
// within `tolerance` of the colour's; alpha is left aside.
int countPixels(const Glob* g, const BoxInt& box, const Colour& colour, int tolerance = 0);
// How many pixels of `box` differ from `background` by more than `tolerance`: ink.
int inkPixels(const Glob* g, const BoxInt& box, std::uint32_t background, int tolerance = 40);
// The same in a picture, such as a program's screenshot read back, with `box`
// counted from the picture's bottom left as the screen counts.
int countPixels(const iHostImage& picture, const BoxInt& box, const Colour& colour, int tolerance = 0);

// Passes when the glob's pixel is within `tolerance` per channel of `expected`;
// on failure the screen and the glob's canvas are written out as PNG files.
::testing::AssertionResult pixelNear(const Glob* g, int x, int y, std::uint32_t expected, int tolerance = 0);
::testing::AssertionResult screenPixelNear(int x, int y, std::uint32_t expected, int tolerance = 0);
// Writes the screen to NAME.png in the output folder; returns the path.
LightweightString<char> saveScreen(const char* name);

/// A fixture that leaves the screen empty for the next test.
class ScreenTest : public ::testing::Test {
protected:
    void TearDown() override { reset(); }
};
/// A program run by a test: its exit status (-1 when it did not exit) and what it
/// wrote on standard output.
struct ProgramRun {
    int status = -1;
    std::string output;
};
ProgramRun runProgram(const std::string& commandLine);

/// Owns a top-level glob for the length of a test.
template <class T>
class Owned {
public:
    explicit Owned(T* g) : g_(g), stamp_(g->stamp()) {}
    ~Owned() {
        if (EventHandler::valid(g_, stamp_)) delete g_;
    }
    Owned(const Owned&) = delete;
    Owned& operator=(const Owned&) = delete;
    T* get() const { return g_; }
    T* operator->() const { return g_; }
    T& operator*() const { return *g_; }

private:
    T* g_;
    IdStamp stamp_;
};

} // namespace TestKit
