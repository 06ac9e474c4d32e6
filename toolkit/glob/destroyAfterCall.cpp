#include "destroyAfterCall.h"

#include "Glob.h"
#include "GlobManager.h"

void destroyAfterCall(Glob* g) {
    if (!is_good_glob_ptr(g)) return;
    g->setVisible(false);
    g->setActive(false, kNoRedraw);
    g->setName({});
    GlobManager::instance().requestDeletion(g);
}
