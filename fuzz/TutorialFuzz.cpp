// Feeds arbitrary bytes to the tutorial reader through the JSON parser, then writes
// what was read and reads it back.
#include "platform/JSON.h"
#include "tutorials/Tutorial.h"

#include <cstddef>
#include <cstdint>

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    LightweightString<char> text(reinterpret_cast<const char*>(data), size);
    Zn::Ptr<JSON::Element> root = JSON::parse(text);
    if (!root) return 0;
    Zn::Ptr<Tutorial> t(new Tutorial);
    t->read(root);
    JSON::Builder b(2);
    t->write(b);
    Zn::Ptr<JSON::Element> again = JSON::parse(b.getOutput());
    if (!again) __builtin_trap(); // what we write must always parse
    Zn::Ptr<Tutorial> back(new Tutorial);
    back->read(again);
    for (unsigned short i = 0; i < back->getNumPhases(); ++i) (void)back->getPhase(i)->pointer.getDisplayString();
    return 0;
}
