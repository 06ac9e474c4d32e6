#pragma once

#include "JSONBuilder.h"
#include "JSONElement.h"
#include "iPersistable.h"

namespace JSON {

// The element tree of a document, or null when the text is not JSON or its top is
// neither an object nor an array.
Zn::Ptr<Element> parse(const LightweightString<char>& text);
Zn::Ptr<Element> parse(const LightweightString<wchar_t>& text);
// The same for a UTF-8 file; null when it cannot be read.
Zn::Ptr<Element> parseFile(const LightweightString<wchar_t>& path);

} // namespace JSON
