// The video format menu built from the whole format table, and the compression
// button following a change of file type and format: the first time a pair is
// asked (FFmpeg's answers forgotten beforehand) and when its answer is kept.
#include "controls/StandardPanel.h"
#include "glob/GlobManager.h"
#include "media/CompressionFormatButton.h"
#include "media/ShotVideoMetadataButton.h"

#include <benchmark/benchmark.h>

#include <memory>

namespace {

ShotVideoMetadata formatOf(std::uint32_t uid) {
    const auto info = Zn::DigitalVideoFormats::findByUID(Zn::Image::FormatUID(uid));
    return ShotVideoMetadata(info, Zn::Image::Format("YUY2"), Zn::kFrameRateNone, Zn::Image::kAspect16x9, true, info.scanMode, 10);
}

struct Host {
    Host() : panel(new StandardPanel(StandardPanel::InitArgs(600, 200))) { GlobManager::instance().realize(panel); }
    ~Host() { delete panel; }
    StandardPanel* panel;
};

void BM_FormatMenuOfTheWholeTable(benchmark::State& state) {
    Host host;
    std::set<ShotVideoMetadata> all;
    for (const auto& info : Zn::DigitalVideoFormats::getFormats()) all.insert(formatOf(info.uid.value()));
    ShotVideoMetadataButton::InitArgs args({}, 200, 26);
    auto* button = host.panel->createWidget<ShotVideoMetadataButton>(args, Glob::UserTopLeft(10, 10));
    for (auto _ : state) button->setFormats(all, ShotVideoMetadata());
    if (button->getFormats().size() != all.size()) state.SkipWithError("formats missing from the menu");
}
BENCHMARK(BM_FormatMenuOfTheWholeTable)->Unit(benchmark::kMicrosecond);

CompressionFormatButton* compressionButton(Host& host) {
    CompressionFormatButton::InitArgs args(Compression::eExport, 240, 400, 26);
    return host.panel->createWidget<CompressionFormatButton>(args, Glob::UserTopLeft(10, 10));
}

void BM_CompressionsOfANewPair(benchmark::State& state) {
    Host host;
    CompressionFormatButton* button = compressionButton(host);
    const char* types[] = {"mov", "mxf", "mp4"};
    int i = 0;
    for (auto _ : state) {
        state.PauseTiming();
        Compression::forgetAnswers();
        const char* type = types[i % 3];
        const ShotVideoMetadata format = formatOf(static_cast<std::uint32_t>(1 + i % 29));
        ++i;
        state.ResumeTiming();
        button->setOutputFormat(type, format);
    }
    if (button->getValidFormats().empty()) state.SkipWithError("no compression offered");
}
BENCHMARK(BM_CompressionsOfANewPair)->Unit(benchmark::kMicrosecond);

void BM_CompressionsOfAKnownPair(benchmark::State& state) {
    Host host;
    CompressionFormatButton* button = compressionButton(host);
    const ShotVideoMetadata sd = formatOf(4), hd = formatOf(14);
    button->setOutputFormat("mov", sd);
    button->setOutputFormat("mov", hd);
    bool high = false;
    for (auto _ : state) {
        high = !high;
        button->setOutputFormat("mov", high ? hd : sd);
    }
    if (button->getValidFormats().empty()) state.SkipWithError("no compression offered");
}
BENCHMARK(BM_CompressionsOfAKnownPair)->Unit(benchmark::kMicrosecond);

} // namespace
