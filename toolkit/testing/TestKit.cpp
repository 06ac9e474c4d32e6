#include "TestKit.h"

#include "draw/Canvas.h"
#include "draw/Screen.h"
#include "glob/GlobManager.h"
#include "glob/InputDispatcher.h"
#include "image/iHostImage.h"

#include <algorithm>
#include <cmath>
#include <cstdio>
#include <cstdlib>
#include <filesystem>
#include <sstream>
#include <sys/wait.h>

namespace TestKit {

namespace {

GlobManager& gm() { return GlobManager::instance(); }

void send(const Event& e) {
    gm().dispatch(e);
    pump();
}

bool near(std::uint32_t a, std::uint32_t b, int tolerance) {
    for (int shift = 0; shift < 32; shift += 8) {
        int x = static_cast<int>((a >> shift) & 0xFF), y = static_cast<int>((b >> shift) & 0xFF);
        if (std::abs(x - y) > tolerance) return false;
    }
    return true;
}

std::string hex(std::uint32_t v) {
    char buf[16];
    std::snprintf(buf, sizeof buf, "0x%08X", v);
    return buf;
}

std::string testName() {
    const auto* info = ::testing::UnitTest::GetInstance()->current_test_info();
    return info ? std::string(info->test_suite_name()) + "." + info->name() : "pixel";
}

} // namespace

void pump() { gm().runUntilIdle(); }

void reset() {
    pump();
    auto roots = gm().roots();
    for (Glob* g : roots)
        if (is_good_glob_ptr(g)) delete g;
    Drawable::clearPendingRedraws();
    gm().input().releaseCapture();
    pump();
}

void mouseMove(XY<int> p, unsigned m) { send(Event::mouse(Event::kMouseMove, p, Event::kNoButton, m)); }
void mouseDown(XY<int> p, Event::Button b, unsigned m) { send(Event::mouse(Event::kMouseDown, p, b, m)); }
void mouseUp(XY<int> p, Event::Button b, unsigned m) { send(Event::mouse(Event::kMouseUp, p, b, m)); }

void click(XY<int> p, Event::Button b, unsigned m) {
    mouseMove(p, m);
    mouseDown(p, b, m);
    mouseUp(p, b, m);
}

void drag(XY<int> from, XY<int> to, int steps) {
    mouseMove(from);
    mouseDown(from);
    for (int i = 1; i <= steps; ++i) {
        XY<int> p(from.x + (to.x - from.x) * i / steps, from.y + (to.y - from.y) * i / steps);
        send(Event::mouse(Event::kMouseMove, p, Event::kLeft));
    }
    mouseUp(to);
}

void wheel(XY<int> p, int delta) { send(Event::wheel(p, delta)); }

void pressKey(int keyCode, unsigned m) {
    send(Event::key(Event::kKeyPress, keyCode, m));
    send(Event::key(Event::kKeyRelease, keyCode, m));
}

void typeText(const LightweightString<wchar_t>& text) { send(Event::text(text)); }

void realizeAt(Glob* g, XY<int> at) {
    g->setupRootPos(at);
    gm().realize(g);
}

XY<int> screenPointOf(const Glob* g, XY<int> local) { return g->screenPos() + local; }

XY<int> centreOf(const Glob* g) { return screenPointOf(g, {g->width() / 2, g->height() / 2}); }

std::uint32_t screenPixel(int x, int y) {
    gm().compose();
    return gm().screen().pixel(x, y);
}

std::uint32_t globPixel(const Glob* g, int x, int y) {
    if (!is_good_glob_ptr(g) || !g->canvas()) return 0;
    if (x < 0 || y < 0 || x >= g->width() || y >= g->height()) return 0;
    XY<int> p = g->canvasPos();
    return g->canvas()->pixel(p.x + x, p.y + y);
}

std::uint32_t argb(const Colour& c) {
    // As the canvas quantises a colour: to 16 bits, rounded, then the top 8 bits.
    auto q = [](double v) { return static_cast<std::uint32_t>(std::lround(v * 65535.0)) >> 8; };
    return q(c.alpha()) << 24 | q(c.red()) << 16 | q(c.green()) << 8 | q(c.blue());
}

LightweightString<char> saveScreen(const char* name) {
    const char* dir = std::getenv("MOSAIC_TEST_OUTPUT");
    std::filesystem::path folder = dir ? dir : ".";
    std::error_code ec;
    std::filesystem::create_directories(folder, ec);
    LightweightString<char> path((folder / (std::string(name) + ".png")).string());
    gm().compose();
    gm().screen().writePNG(path);
    return path;
}

bool similar(std::uint32_t a, std::uint32_t b, int tolerance) {
    const std::uint32_t opaque = 0xFF000000u;
    return near(a | opaque, b | opaque, tolerance);
}

int countPixels(const Glob* g, const BoxInt& box, const Colour& colour, int tolerance) {
    const std::uint32_t want = argb(colour);
    int n = 0;
    for (int y = box.y1; y < box.y2; ++y)
        for (int x = box.x1; x < box.x2; ++x) n += similar(globPixel(g, x, y), want, tolerance);
    return n;
}

int inkPixels(const Glob* g, const BoxInt& box, std::uint32_t background, int tolerance) {
    int n = 0;
    for (int y = box.y1; y < box.y2; ++y)
        for (int x = box.x1; x < box.x2; ++x) n += !similar(globPixel(g, x, y), background, tolerance);
    return n;
}

int countPixels(const iHostImage& picture, const BoxInt& box, const Colour& colour, int tolerance) {
    const std::uint32_t opaque = 0xFF000000u, want = argb(colour) | opaque;
    const XY<int> size = picture.getSize();
    int n = 0;
    for (int y = std::max(0, box.y1); y < std::min(size.y, box.y2); ++y) {
        const auto* row = reinterpret_cast<const std::uint32_t*>(picture.data() + static_cast<std::ptrdiff_t>(size.y - 1 - y) * picture.stride());
        for (int x = std::max(0, box.x1); x < std::min(size.x, box.x2); ++x) n += near(row[x] | opaque, want, tolerance);
    }
    return n;
}

ProgramRun runProgram(const std::string& commandLine) {
    ProgramRun run;
    FILE* pipe = ::popen(commandLine.c_str(), "r");
    if (!pipe) return run;
    char buffer[4096];
    for (std::size_t n; (n = std::fread(buffer, 1, sizeof buffer, pipe)) > 0;) run.output.append(buffer, n);
    const int status = ::pclose(pipe);
    run.status = WIFEXITED(status) ? WEXITSTATUS(status) : -1;
    return run;
}

::testing::AssertionResult pixelNear(const Glob* g, int x, int y, std::uint32_t expected, int tolerance) {
    std::uint32_t got = globPixel(g, x, y);
    if (near(got, expected, tolerance)) return ::testing::AssertionSuccess();
    std::string base = testName() + "_err";
    LightweightString<char> shot = saveScreen(base.c_str());
    if (is_good_glob_ptr(g) && g->canvas()) {
        std::string canvasShot = (std::filesystem::path(shot.str()).parent_path() / (base + "_canvas.png")).string();
        writeCanvasPNG(*g->canvas(), canvasShot.c_str());
    }
    return ::testing::AssertionFailure() << "pixel (" << x << ", " << y << ") of " << (g ? g->idstring() : "null") << " is " << hex(got)
                                         << ", expected " << hex(expected) << "; screen saved to " << shot.str();
}

::testing::AssertionResult screenPixelNear(int x, int y, std::uint32_t expected, int tolerance) {
    std::uint32_t got = screenPixel(x, y);
    if (near(got, expected, tolerance)) return ::testing::AssertionSuccess();
    LightweightString<char> shot = saveScreen((testName() + "_err").c_str());
    return ::testing::AssertionFailure() << "screen pixel (" << x << ", " << y << ") is " << hex(got) << ", expected " << hex(expected)
                                         << "; screen saved to " << shot.str();
}

} // namespace TestKit
