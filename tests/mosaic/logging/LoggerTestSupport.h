#pragma once

#include "logging/Logger.h"

#include "controls/TableWidget.h"
#include "core/Utf8.h"
#include "draw/UifStd.h"
#include "glob/GlobManager.h"
#include "platform/Clock.h"
#include "platform/OS.h"
#include "platform/Paths.h"
#include "platform/ResourceStrings.h"
#include "tasks/HyperLink.h"
#include "tasks/TaskLog.h"
#include "testing/TestKit.h"

#include "../../toolkit/platform/TempFolder.h"

#include <filesystem>
#include <fstream>
#include <string>

// The whole of a file, as bytes.
inline std::string slurp(const std::filesystem::path& p) {
    std::ifstream in(p, std::ios::binary);
    return std::string(std::istreambuf_iterator<char>(in), {});
}

// A realized logger per test, a scratch folder, and the launches that the shell
// would have made, recorded instead.
class LoggerFixture : public ::testing::Test {
protected:
    void SetUp() override {
        row = UifStd::instance().getRowHeight();
        OS()->setLauncher([this](const LightweightString<char>& program, const std::vector<LightweightString<char>>& args) {
            launched.push_back(program.str() + " " + (args.empty() ? std::string() : args.front().str()));
            return true;
        });
    }
    void TearDown() override {
        OS()->setLauncher({});
        Clock::clearTestTime();
        TestKit::reset();
    }

    Logger* make(unsigned flags = 0, const Zn::Ptr<iTaskLog>& log = {}, unsigned short rows = 8, unsigned short width = 420) {
        Logger::InitArgs a(rows, width, flags);
        a.taskLog = log;
        a.title = UIString(L"Render log");
        a.palette = UifStd::instance().getColourScheme();
        auto* l = TestKit::realize(new Logger(a), {30, 30});
        TestKit::pump();
        return l;
    }
    // Writes through the panel and lets the notice arrive.
    static void put(Logger* l, const LightweightString<wchar_t>& text, LoggerBase::eOutputType type = LoggerBase::otNormal) {
        l->write(text, type);
        TestKit::pump();
    }
    static std::vector<std::wstring> texts(const Logger* l) {
        std::vector<std::wstring> out;
        for (unsigned short i = 0; i < l->rowCount(); ++i) out.push_back(l->rows()[i].text.str());
        return out;
    }
    LightweightString<wchar_t> path(const char* name) const { return fromUTF8((dir / name).string().c_str()); }
    // The screen point in the middle of the left part of a row's text.
    static XY<int> rowPoint(Logger* l, int r, int dx = 6) {
        BoxInt b = l->table()->getCellBox({0, r});
        return TestKit::screenPointOf(l->table(), {b.x1 + dx, (b.y1 + b.y2) / 2});
    }

    TempFolder scratch;
    std::filesystem::path dir{scratch.str()};
    std::vector<std::string> launched;
    int row = 0;
};
