#include "Version.h"

#include <gtest/gtest.h>

#include <regex>

TEST(Version, IsFourNumbersPartedByDots) { EXPECT_TRUE(std::regex_match(mosaicDllVersionStr(), std::regex(R"(\d+\.\d+\.\d+\.\d+)"))); }
