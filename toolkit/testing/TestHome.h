#pragma once

#include <gtest/gtest.h>

#include <filesystem>
#include <vector>

namespace TestKit {

/// A fresh, empty folder that stands for the user's own folders while a test
/// program runs: HOME, MOSAIC_HOME and the XDG settings, data and state folders
/// all point inside it, so that no test reads or writes the user's real ones. The
/// folder is removed at the end, and the run fails if one of the real folders of
/// the library was made or changed meanwhile. CTest runs each test in a process of
/// its own, so each test gets a fresh folder.
class TestHome : public ::testing::Environment {
public:
    void SetUp() override;
    void TearDown() override;

    // The folder, while the tests run; empty otherwise.
    static const std::filesystem::path& path();

private:
    struct Watched {
        std::filesystem::path folder;
        bool existed = false;
        std::filesystem::file_time_type modified{};
    };
    std::vector<Watched> watched_;
};

} // namespace TestKit
