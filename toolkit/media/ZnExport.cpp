#include "ZnExport.h"

#include "FileTypeTable.h"

LightweightString<wchar_t> ZnExport::getExtensionForFormatID(const LightweightString<char>& id) {
    const FileType* type = FileTypeTable::find(id);
    return type ? LightweightString<wchar_t>(type->extension) : LightweightString<wchar_t>();
}

LightweightString<char> ZnExport::getFormatIDForExtension(const LightweightString<wchar_t>& extension) {
    const FileType* type = FileTypeTable::findByExtension(extension);
    return type ? LightweightString<char>(type->id) : LightweightString<char>();
}
