#pragma once

/// A count of reasons to be deaf: notices reach a client only while it is below 1.
class EnableDisable {
public:
    virtual ~EnableDisable() = default;
    void disable() { ++disableCount_; }
    void enable() { --disableCount_; }
    bool isEnabled() const { return disableCount_ < 1; }
    int disableCount() const { return disableCount_; }

private:
    int disableCount_ = 0;
};
