#pragma once

namespace Glib {

/// Holds back the redraws asked for in its scope and carries them out together
/// at its end, so that painting done in pieces reaches the screen once.
class UpdateDeferrer {
public:
    UpdateDeferrer();
    ~UpdateDeferrer();
    UpdateDeferrer(const UpdateDeferrer&) = delete;
    UpdateDeferrer& operator=(const UpdateDeferrer&) = delete;
};

} // namespace Glib
