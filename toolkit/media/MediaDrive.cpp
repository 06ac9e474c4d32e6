#include "MediaDrive.h"

#include "core/Utf8.h"

LightweightString<wchar_t> MediaDrive::getUserName(bool withLocation) const {
    const std::string path = mountPoint.c_str();
    const std::size_t slash = path.find_last_of('/');
    const std::string last = slash == std::string::npos || slash + 1 == path.size() ? path : path.substr(slash + 1);
    LightweightString<wchar_t> name = fromUTF8(last.c_str());
    if (withLocation && last != path) name = name + L" (" + fromUTF8(mountPoint) + L")";
    return name;
}
