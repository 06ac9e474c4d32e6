// Feeds arbitrary bytes to the saved-state reader, restores what was read into a
// small panel's parameters, saves them again, and checks that the saved text reads
// back to the same store.
#include "params/MaxValueConstraint.h"
#include "params/UIBuilderParams.h"
#include "platform/ConfigbFile.h"

#include <cstddef>
#include <cstdint>

using namespace GenericParam;

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    configb read;
    if (!ConfigbFile::fromText(LightweightString<char>(reinterpret_cast<const char*>(data), size), read)) return 0;
    UIBuilder::ParamList params;
    params.push_back(Zn::Ptr<iParam>(new IntParam(4, "count", L"Count", L"")));
    params.push_back(Zn::Ptr<iParam>(new DoubleParam(L"Level", "level", L"", 0.5, 0.0, 1.0)));
    params.push_back(Zn::Ptr<iParam>(new BoolParam(L"On", "on", L"", true)));
    params.push_back(Zn::Ptr<iParam>(new TextParam(LightweightString<wchar_t>(), "name", L"Name", L"")));
    params.push_back(Zn::Ptr<iParam>(new ChoiceParam(L"Mode", "mode", L"", 1, {{L"A", 1}, {L"B", 2}})));
    params[0]->addValueConstraint(Zn::Ptr<iValueConstraint>(new MaxValueConstraint(params[1])));
    Zn::Ptr<UIBuilder::Params> set(new UIBuilder::Params(params, {}, {}));
    set->restoreState(read);
    configb saved;
    set->saveState(saved);
    configb again;
    if (!ConfigbFile::fromText(ConfigbFile::toText(saved), again) || again.entries() != saved.entries()) __builtin_trap();
    return 0;
}
