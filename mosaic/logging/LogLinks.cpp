#include "LogLinks.h"

#include "glob/CanvasStack.h"
#include "glob/GlobManager.h"
#include "platform/JSON.h"
#include "platform/OS.h"
#include "platform/Paths.h"
#include "platform/revealFilesInOS.h"

#include <cwctype>

namespace {

bool equalsIgnoringCase(std::wstring_view a, std::wstring_view b) {
    if (a.size() != b.size()) return false;
    for (std::size_t i = 0; i < a.size(); ++i)
        if (std::towlower(a[i]) != std::towlower(b[i])) return false;
    return true;
}

bool startsWithIgnoringCase(std::wstring_view text, std::wstring_view prefix) {
    return text.size() >= prefix.size() && equalsIgnoringCase(text.substr(0, prefix.size()), prefix);
}

} // namespace

bool LogLinks::opensInApplication(const LightweightString<wchar_t>& target) {
    LightweightString<wchar_t> ext = getExtension(target);
    std::wstring_view extension = ext.view();
    if (!extension.empty() && extension.front() == L'.') extension.remove_prefix(1);
    if (equalsIgnoringCase(extension, L"HTML") || equalsIgnoringCase(extension, L"EDL")) return true;
    std::wstring_view v = target.view();
    return startsWithIgnoringCase(v, L"http:") || startsWithIgnoringCase(v, L"https:") || startsWithIgnoringCase(v, L"www.");
}

void LogLinks::follow(const LoggerBase::HyperLink& link) {
    if (link.empty()) return;
    const LightweightString<wchar_t>& target = link.getTargets().front();
    if (link.isInternal()) {
        openInternal(target);
    } else if (opensInApplication(target)) {
        OS()->openWithDefaultApplication(target);
    } else {
        Zn::revealFilesInOS(link.getTargets());
    }
}

Glob* LogLinks::openInternal(const LightweightString<wchar_t>& json) {
    Zn::Ptr<JSON::Element> doc = JSON::parse(json);
    if (!doc) return nullptr;
    LightweightString<char> type = doc->getString("type");
    if (type.empty()) return nullptr;
    GlobCreationInfo info;
    info.type = type;
    info.position = glib_getMousePos();
    if (Zn::Ptr<JSON::Element> params = doc->getChild("params")) {
        for (unsigned short i = 0; i < params->getNumStringAttribs(); ++i)
            info.settings.set(params->getStringAttribName(i).c_str(), params->getString(i));
    }
    return GlobManager::instance().createGlob(info);
}
