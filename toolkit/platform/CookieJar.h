#pragma once

#include "Cookie.h"

/// Makes cookies. Each is unique across processes and machines: it carries the
/// time, the process, a counter and random bits.
class CookieJar {
public:
    // `kind` is a letter (84, 'T', for tutorials); a kind that is not a letter or digit becomes 'X'.
    static Cookie makeCookie(int kind, int version, int flags);
};
