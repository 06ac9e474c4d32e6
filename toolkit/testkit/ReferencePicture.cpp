#include "ReferencePicture.h"

#include "TestKit.h"
#include "core/Utf8.h"
#include "draw/Screen.h"
#include "image/HostImage.h"

#include <cstdlib>
#include <filesystem>

namespace fs = std::filesystem;

namespace TestKit {

namespace {

bool updating() {
    const char* v = std::getenv("MOSAIC_UPDATE_REFERENCES");
    return v && *v && std::string(v) != "0";
}

fs::path errorPicture(const fs::path& reference) {
    return reference.parent_path() / (reference.stem().string() + "_err" + reference.extension().string());
}

// The first pixel, from the top left, at which the picture and the screen's area
// differ by more than the tolerance; -1 for none.
int firstDifference(const iHostImage& picture, const BoxInt& area, int tolerance) {
    const Screen& screen = GlobManager::instance().screen();
    for (int row = 0; row < area.height(); ++row) {
        const auto* line = reinterpret_cast<const std::uint32_t*>(picture.data() + static_cast<std::ptrdiff_t>(row) * picture.stride());
        for (int col = 0; col < area.width(); ++col)
            if (!similar(line[col], screen.pixel(area.x1 + col, area.y2 - 1 - row), tolerance)) return row * area.width() + col;
    }
    return -1;
}

::testing::AssertionResult mismatch(const fs::path& reference, const BoxInt& area, const std::string& why) {
    const fs::path err = errorPicture(reference);
    std::error_code ec;
    fs::create_directories(err.parent_path(), ec);
    const bool written = GlobManager::instance().screen().writePNG(err.string().c_str(), area);
    return ::testing::AssertionFailure() << reference.string() << ": " << why << "; "
                                         << (written ? "the picture is in " + err.string() : "no picture could be written to " + err.string())
                                         << " (MOSAIC_UPDATE_REFERENCES=1 remakes the reference)";
}

} // namespace

::testing::AssertionResult matchesReference(const BoxInt& screenArea, const std::string& reference, int tolerance) {
    GlobManager& gm = GlobManager::instance();
    gm.compose();
    BoxInt area = screenArea;
    area.clip(gm.screen().bounds());
    const fs::path path(reference);
    if (area.isEmpty()) return ::testing::AssertionFailure() << reference << ": nothing of the area is on the screen";
    std::error_code ec;
    if (updating()) {
        fs::create_directories(path.parent_path(), ec);
        if (!gm.screen().writePNG(reference.c_str(), area)) return ::testing::AssertionFailure() << "cannot write the reference " << reference;
        fs::remove(errorPicture(path), ec);
        return ::testing::AssertionSuccess() << "wrote " << reference;
    }
    Zn::Ptr<iHostImage> picture = HostImage::loadPNG(fromUTF8(LightweightString<char>(reference.c_str())));
    if (!picture) return mismatch(path, area, "no reference picture");
    if (picture->getSize() != area.size())
        return mismatch(path, area,
                        "the reference is " + std::to_string(picture->getSize().x) + "x" + std::to_string(picture->getSize().y) + ", the picture " +
                            std::to_string(area.width()) + "x" + std::to_string(area.height()));
    if (int at = firstDifference(*picture, area, tolerance); at >= 0)
        return mismatch(path, area,
                        "differs first at (" + std::to_string(at % area.width()) + ", " + std::to_string(at / area.width()) + ") from the top left");
    fs::remove(errorPicture(path), ec);
    return ::testing::AssertionSuccess();
}

::testing::AssertionResult matchesReference(const Glob* g, const std::string& reference, int tolerance) {
    if (!is_good_glob_ptr(g)) return ::testing::AssertionFailure() << reference << ": no widget to compare";
    return matchesReference(BoxInt(g->screenPos(), g->size()), reference, tolerance);
}

} // namespace TestKit
