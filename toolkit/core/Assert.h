#pragma once

// MOSAIC_ASSERT(condition, "why") stops a debug or sanitizer build at a caller's
// mistake (a glob added to itself, a widget touched off the user-interface thread):
// it prints the reason and where, and aborts. Release builds (NDEBUG) compile it
// out, condition and all, so the code after it must still degrade quietly: an
// assertion never replaces the check that keeps a release build safe.
//
// MOSAIC_ASSERTS_ACTIVE is 1 where assertions are compiled in, for tests that
// expect one to fire in a debug build and the quiet path in a release build.
#if !defined(NDEBUG) || defined(MOSAIC_ASSERTS_ON)
#define MOSAIC_ASSERTS_ACTIVE 1
#define MOSAIC_ASSERT(condition, why) ((condition) ? (void)0 : ::Zn::assertionFailed(#condition, why, __FILE__, __LINE__))
#else
#define MOSAIC_ASSERTS_ACTIVE 0
#define MOSAIC_ASSERT(condition, why) ((void)0)
#endif

namespace Zn {

// Writes "MOSAIC_ASSERT failed: WHY (CONDITION) at FILE:LINE" to standard error and aborts.
[[noreturn]] void assertionFailed(const char* condition, const char* why, const char* file, int line);

} // namespace Zn
