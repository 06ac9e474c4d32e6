// Progress displays moving on the gallery's timer: a copy with its time left, a
// slower task in another colour, and a render whose preview changes every tick.
#include "GalleryScene.h"

#include "draw/Screen.h"
#include "glob/GlobManager.h"
#include "image/GPUImage.h"
#include "logging/ProgInd.h"
#include "logging/RenderProgressPanel.h"

#include <cmath>
#include <cstdint>
#include <string>

namespace {

// A progress panel that advances by `step` each tick and starts again when done.
class TickingProgInd : public ProgInd {
public:
    TickingProgInd(const wchar_t* title, XY<int> at, double step, const Colour& bar)
        : ProgInd(title, at.x, at.y, UifStd::instance().getColourScheme(), 0.0, 100.0, false), step_(step), bar_(bar) {
        showTimeRemaining(true);
        setInterest(Glob::kTimerInterest);
    }
    int handleTimerEvent() override {
        value_ += step_;
        if (value_ > 100.0) {
            value_ = 0.0;
            showTimeRemaining(true);
        }
        update_progress(L"Clip " + LightweightString<wchar_t>(std::to_wstring(static_cast<int>(value_) / 10 + 1)) + L" of 10", value_, bar_);
        return 1;
    }

private:
    double value_ = 0.0, step_;
    Colour bar_;
};

// A frame of the render: colour bars sliding sideways under a white ball that
// crosses the picture, so that each tick's preview differs from the last.
Zn::Ptr<iImage> renderFrame(int frame) {
    const int w = 160, h = 90;
    auto* image = new GPUImage(w, h);
    static const std::uint32_t bars[] = {0xFFC0C0C0, 0xFFC0C000, 0xFF00C0C0, 0xFF00C000, 0xFFC000C0, 0xFFC00000, 0xFF0000C0};
    double bx = (frame * 3) % w, by = h / 2 + std::sin(frame / 6.0) * h / 3;
    for (int y = 0; y < h; ++y) {
        auto* row = reinterpret_cast<std::uint32_t*>(image->data() + y * image->stride());
        for (int x = 0; x < w; ++x) {
            bool ball = (x - bx) * (x - bx) + (y - by) * (y - by) < 100;
            row[x] = ball ? 0xFFFFFFFF : bars[((x + frame) * 7 / w) % 7];
        }
    }
    return Zn::Ptr<iImage>(image);
}

class TickingRender : public RenderProgressPanel {
public:
    TickingRender()
        : RenderProgressPanel(static_cast<unsigned short>(14 * UifStd::instance().getRowHeight()), Zn::Image::kAspect16x9,
                              UifStd::instance().getColourScheme().window(kShadeNormal)) {
        setInterest(Glob::kTimerInterest);
    }
    int handleTimerEvent() override {
        frame_ = (frame_ + 1) % 250;
        updateProgress(ProgressSnapshot(static_cast<float>(frame_ + 1) / 250.0f, L"", renderFrame(frame_)));
        return 1;
    }

private:
    int frame_ = 0;
};

void buildProgress() {
    const Screen& screen = GlobManager::instance().screen();
    int top = screen.height() - 60;
    auto* copy = new TickingProgInd(L"Copying clips", {40, top - ProgInd::calcHeight()}, 0.5,
                                    UifStd::instance().getColourScheme().selection(kSelectionFocused));
    auto* slow = new TickingProgInd(L"Building the waveform cache", {40, top - 2 * ProgInd::calcHeight() - 30}, 0.1, Colour(0.85, 0.5, 0.15));
    auto* render = new TickingRender();
    render->setupRootPos({40 + ProgInd::kWidth + 40, top - render->height()});
    for (Glob* g : {static_cast<Glob*>(copy), static_cast<Glob*>(slow), static_cast<Glob*>(render)}) {
        GlobManager::instance().realize(g);
        g->handleEvent(Event::timer()); // a first step, so that a still picture shows them under way
    }
}

GallerySceneRegistration progress("progress", "Progress panels with the time left, and a render's gauge under its live preview", buildProgress);

} // namespace
