#pragma once

/// Something that notes that it has unsaved changes.
class Dirtiable {
public:
    virtual ~Dirtiable() = default;
    virtual void makeDirty() { dirty_ = true; }
    virtual void makeClean() { dirty_ = false; }
    virtual bool isDirty() const { return dirty_; }

private:
    bool dirty_ = false;
};
