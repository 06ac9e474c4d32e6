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
// The top element of a file that parses, with its own strings, numbers and flags but
// none of its children: listing a folder of documents without building them whole.
Zn::Ptr<Element> parseFileTop(const LightweightString<wchar_t>& path);

} // namespace JSON
