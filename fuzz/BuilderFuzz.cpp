// Feeds arbitrary text to the panel builder as a description, paints what it built,
// then reads the same text as a saved state and restores it into the panel's
// parameters: bad descriptions and bad states build and restore less, never crash.
#include "controls/StandardPanel.h"
#include "core/Utf8.h"
#include "glob/GlobManager.h"
#include "params/UIBuilderParams.h"
#include "platform/ConfigbFile.h"

#include <cstddef>
#include <cstdint>

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    const LightweightString<char> text(reinterpret_cast<const char*>(data), size);
    auto* panel = new StandardPanel(StandardPanel::InitArgs(400, 600));
    panel->setupRootPos({0, 0});
    GlobManager::instance().realize(panel);
    Zn::Ptr<UIBuilder::Params> set = UIBuilder::buildFromJSON(fromUTF8(text), panel);
    GlobManager::instance().runUntilIdle();
    panel->drawUnbuffered();

    configb state;
    if (ConfigbFile::fromText(text, state)) set->restoreState(state);
    configb saved;
    set->saveState(saved);
    configb again;
    if (!ConfigbFile::fromText(ConfigbFile::toText(saved), again) || again.entries() != saved.entries()) __builtin_trap();

    delete panel;
    GlobManager::instance().runUntilIdle();
    return 0;
}
