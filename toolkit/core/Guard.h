#pragma once

#include "Ptr.h"
#include "iObject.h"

#include <functional>

namespace Zn {

/// The token of a registration: the registration ends when the last copy of the
/// guard goes away or release() is called.
class Guard {
public:
    Guard() = default;
    explicit Guard(std::function<void()> onRelease) : token_(new Token(std::move(onRelease))) {}

    void release() { token_.reset(); }
    bool active() const { return static_cast<bool>(token_); }

private:
    class Token : public iObject {
    public:
        explicit Token(std::function<void()> f) : onRelease_(std::move(f)) {}
        ~Token() override {
            if (onRelease_) onRelease_();
        }

    private:
        std::function<void()> onRelease_;
    };
    Ptr<Token> token_;
};

} // namespace Zn
