#pragma once

#include "tasks/HyperLink.h"

class Glob;

/// What following a link row does. A link to a web page, an HTML page or an edit
/// decision list opens in its default application; a link to any other file shows
/// the file in the file manager; an internal link (a JSON description of a panel)
/// makes that panel where the mouse is.
class LogLinks {
public:
    // Does nothing for a link with no targets.
    static void follow(const LoggerBase::HyperLink& link);
    // True for a target that opens rather than shows: extension HTML or EDL, or a
    // web address ("http:", "https:", "www."), whatever the case.
    static bool opensInApplication(const LightweightString<wchar_t>& target);
    // Makes the panel of an internal link's JSON text {"type": ..., "params": {...}}
    // through GlobManager::createGlob; text that does not parse, or has no or an
    // empty "type", makes nothing. Returns the glob made, or null.
    static Glob* openInternal(const LightweightString<wchar_t>& json);
};
