#pragma once

#include "core/LightweightString.h"

/// A user name and a password, as a sign-in widget gathers them.
struct SignInCredentials {
    LightweightString<wchar_t> userName;
    LightweightString<wchar_t> password;
};
