#pragma once

#include "core/LightweightString.h"

// The extensions of the file types that FileWriterInfo names.
namespace ZnExport {

// The file type's extension, in upper case ("MOV"); empty for an unknown identifier.
LightweightString<wchar_t> getExtensionForFormatID(const LightweightString<char>& id);
// The identifier of the file type with that extension, in any case; empty for none.
LightweightString<char> getFormatIDForExtension(const LightweightString<wchar_t>& extension);

} // namespace ZnExport
