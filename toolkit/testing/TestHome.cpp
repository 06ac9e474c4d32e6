#include "TestHome.h"

#include <cstdlib>
#include <string>

namespace fs = std::filesystem;

namespace TestKit {

namespace {

fs::path& current() {
    static fs::path p;
    return p;
}

// The folder an XDG variable names, else its default under HOME, as the library finds it.
fs::path xdgFolder(const char* var, const char* underHome) {
    if (const char* v = std::getenv(var); v && *v) return v;
    const char* home = std::getenv("HOME");
    return fs::path(home && *home ? home : "/tmp") / underHome;
}

} // namespace

const fs::path& TestHome::path() { return current(); }

void TestHome::SetUp() {
    std::vector<fs::path> real = {xdgFolder("XDG_CONFIG_HOME", ".config") / "mosaic", xdgFolder("XDG_DATA_HOME", ".local/share") / "mosaic",
                                  xdgFolder("XDG_STATE_HOME", ".local/state") / "mosaic"};
    if (const char* home = std::getenv("MOSAIC_HOME"); home && *home) real.emplace_back(home);
    for (const fs::path& folder : real) {
        std::error_code ec;
        Watched w{folder, fs::exists(folder, ec), {}};
        if (w.existed) w.modified = fs::last_write_time(folder, ec);
        watched_.push_back(w);
    }

    std::string pattern = (fs::temp_directory_path() / "mosaic-home-XXXXXX").string();
    if (!mkdtemp(pattern.data())) FAIL() << "no temporary folder for the tests' home: " << pattern;
    current() = pattern;
    for (auto [var, sub] : {std::pair{"HOME", "user"},
                            {"MOSAIC_HOME", "mosaic"},
                            {"XDG_CONFIG_HOME", "config"},
                            {"XDG_DATA_HOME", "data"},
                            {"XDG_STATE_HOME", "state"}}) {
        fs::create_directories(current() / sub);
        setenv(var, (current() / sub).c_str(), 1);
    }
}

void TestHome::TearDown() {
    std::error_code ec;
    if (!current().empty()) fs::remove_all(current(), ec);
    current().clear();
    for (const Watched& w : watched_) {
        bool exists = fs::exists(w.folder, ec);
        EXPECT_EQ(exists, w.existed) << w.folder << " was made or removed by a test";
        if (exists && w.existed) {
            EXPECT_TRUE(fs::last_write_time(w.folder, ec) == w.modified) << w.folder << " was changed by a test";
        }
    }
}

} // namespace TestKit
