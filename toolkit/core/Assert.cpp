#include "Assert.h"

#include <cstdio>
#include <cstdlib>

void Zn::assertionFailed(const char* condition, const char* why, const char* file, int line) {
    std::fprintf(stderr, "MOSAIC_ASSERT failed: %s (%s) at %s:%d\n", why, condition, file, line);
    std::fflush(stderr);
    std::abort();
}
