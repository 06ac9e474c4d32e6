// A program outside the tree that links the installed libraries, to check that the
// installed headers, CMake package and pkg-config file are complete.
#include "Version.h"
#include "controls/StandardPanel.h"
#include "glob/GlobManager.h"

#include <cstdio>
#include <cstring>

int main() {
    auto* p = new StandardPanel(100, 50);
    p->setTitle(UIString(L"installed"));
    GlobManager::instance().realize(p);
    GlobManager::instance().runUntilIdle();
    bool ok = std::strchr(mosaicDllVersionStr(), '.') && p->getUserArea().height() < 50;
    delete p;
    std::puts(ok ? "ok" : "broken");
    return ok ? 0 : 1;
}
