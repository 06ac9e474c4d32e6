#pragma once

#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <string>
#include <unistd.h>
#include <vector>

// A fresh folder for one test, removed afterwards, with environment variables
// set for the test's length and restored after.
class TempFolder {
public:
    TempFolder() {
        static int n = 0;
        path_ = std::filesystem::temp_directory_path() / ("mosaic-test-" + std::to_string(getpid()) + "-" + std::to_string(++n));
        std::filesystem::create_directories(path_);
    }
    ~TempFolder() {
        // Newest first, so that a variable set twice gets its first value back.
        for (auto it = saved_.rbegin(); it != saved_.rend(); ++it) {
            if (it->second.first)
                setenv(it->first.c_str(), it->second.second.c_str(), 1);
            else
                unsetenv(it->first.c_str());
        }
        std::error_code ec;
        std::filesystem::remove_all(path_, ec);
    }
    std::string str() const { return path_.string(); }
    std::string file(const std::string& name) const { return (path_ / name).string(); }
    std::string write(const std::string& name, const std::string& text) const {
        std::ofstream(path_ / name, std::ios::binary) << text;
        return file(name);
    }
    std::string read(const std::string& name) const {
        std::ifstream in(path_ / name, std::ios::binary);
        return std::string(std::istreambuf_iterator<char>(in), {});
    }
    void setEnv(const std::string& name, const std::string& value) {
        const char* old = std::getenv(name.c_str());
        saved_.push_back({name, {old != nullptr, old ? old : ""}});
        setenv(name.c_str(), value.c_str(), 1);
    }

private:
    std::filesystem::path path_;
    std::vector<std::pair<std::string, std::pair<bool, std::string>>> saved_;
};
