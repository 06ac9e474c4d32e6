#include "backend/XdndDragSource.h"

#include <gtest/gtest.h>

TEST(XdndDragSource, FilesAreOfferedAsPercentEncodedFileUrisOneALine) {
    std::string list = XdndDragSource::uriList({L"/tmp/Reel 1.mov", L"/m\u00e9dia/a%b#c?d&e.mov", L"/keep/-._~/x", L"clips/relative.mov",
                                                L"{\"type\":\"Panel\"}", L"https://example.org/a.html", L"C:\\clip.mov", L""});
    EXPECT_EQ(list, "file:///tmp/Reel%201.mov\r\n"
                    "file:///m%C3%A9dia/a%25b%23c%3Fd%26e.mov\r\n"
                    "file:///keep/-._~/x\r\n"
                    "https://example.org/a.html\r\n")
        << "addresses pass as they are; relative paths, panel descriptions and drive letters are no files here";
    EXPECT_EQ(XdndDragSource::uriList({L"relative.mov"}), "");
    EXPECT_EQ(XdndDragSource::forWindow(nullptr), nullptr);
}
