#pragma once

#include "Param.h"

#include <vector>

namespace GenericParam {

/// The path of a file, chosen with the file browser through the given name filters
/// (such as "*.png"). The value type word is the caller's.
class FileParam : public Param<LightweightString<wchar_t>> {
public:
    FileParam(const UIString& legend, const LightweightString<char>& id, const UIString& tooltip, const LightweightString<wchar_t>& value,
              const std::vector<LightweightString<wchar_t>>& filters = {}, const LightweightString<char>& valueType = "file")
        : Param<LightweightString<wchar_t>>(value, id, legend, tooltip, valueType), filters(filters) {}
    Zn::Ptr<iParam> clone() const override { return Zn::Ptr<iParam>(new FileParam(*this)); }

    std::vector<LightweightString<wchar_t>> filters;

protected:
    FileParam(const FileParam& other) : Zn::InternalRefCount(), Param<LightweightString<wchar_t>>(other), filters(other.filters) {}
};

} // namespace GenericParam
