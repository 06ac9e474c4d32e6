#pragma once

#include "controls/StandardPanel.h"

/// A panel around a glob made by kind name through GlobManager::createGlob, centred
/// inside it. When the kind cannot be made the wrapper stays an empty panel that
/// still sizes and paints.
class FactoryGlobWrapper : public StandardPanel {
public:
    FactoryGlobWrapper(const StandardPanel::InitArgs& args);

    const char* idstring() const override { return idString_.c_str(); }
    Glob* contained() const { return glob_; }

    void resize(double width, double height) override;
    void setVisible(bool v) override;
    XY<int> getMinSize() const override;
    void drawBackground() override;

private:
    Glob* glob_ = nullptr;
    LightweightString<char> idString_;
};
