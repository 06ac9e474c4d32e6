#include "TutorialsManager.h"

#include "platform/CookieJar.h"
#include "platform/LokiThreadSafe.h"
#include "platform/OS.h"
#include "platform/Paths.h"

#include <algorithm>
#include <loki/Singleton.h>

namespace {
using Holder = Loki::SingletonHolder<TutorialsManager, Loki::CreateUsingNew, Loki::DeletableSingleton, Loki::ThreadSafetyTraits::ThreadSafe>;
const wchar_t kExtension[] = L".ZnTutorial";
} // namespace

TutorialsManager& TutorialsManager::instance() { return Holder::Instance(); }

LightweightString<wchar_t> TutorialsManager::getLocation() { return joinPaths(OS()->getApplicationDataFolder(), L"Tutorials"); }

TutorialsManager::TutorialsManager(const LightweightString<wchar_t>& location) : location_(location) {
    for (const iFileManager::DirectoryItem& item : OS()->listFolder(joinPaths(location_, L"*.ZnTutorial"), L"*", false))
        tutorials_.push_back(Tutorial::listed(joinPaths(location_, item.name)));
    buildCategories();
}

void TutorialsManager::notify(int code, const Zn::Ptr<Tutorial>& tutorial) const {
    issueNotification(NotifyMsg(LightweightString<char>(), Zn::Ptr<iObject>(tutorial)), code);
}

Zn::Ptr<Tutorial> TutorialsManager::createTutorial(const LightweightString<wchar_t>& name, const LightweightString<wchar_t>& category) {
    Cookie cookie = CookieJar::makeCookie(84, 0, 0);
    Zn::Ptr<Tutorial> t(new Tutorial);
    tutorials_.push_back(t);
    t->setName(name);
    t->setCategory(category);
    t->save(joinPaths(location_, cookie.asWString() + kExtension));
    categories_.insert(category);
    notify(kCreated, t);
    return t;
}

void TutorialsManager::save(Zn::Ptr<Tutorial> tutorial) {
    if (!tutorial) return;
    tutorial->save(tutorial->getPath());
    notify(kSaved, tutorial);
}

void TutorialsManager::deleteTutorial(Zn::Ptr<Tutorial> tutorial) {
    auto it = std::find(tutorials_.begin(), tutorials_.end(), tutorial);
    if (!tutorial || it == tutorials_.end()) return;
    tutorials_.erase(it);
    OS()->deleteFile(tutorial->getPath());
    buildCategories();
    notify(kDeleted, tutorial);
}

Zn::Ptr<Tutorial> TutorialsManager::clone(const Zn::Ptr<Tutorial>& tutorial) const {
    return tutorial ? Zn::Ptr<Tutorial>(new Tutorial(*tutorial)) : Zn::Ptr<Tutorial>();
}

Zn::Ptr<Tutorial> TutorialsManager::getTutorial(const LightweightString<wchar_t>& id) const {
    for (const auto& t : tutorials_)
        if (t->getID() == id) return t;
    return {};
}

std::vector<Zn::Ptr<Tutorial>> TutorialsManager::getCategoryContents(const LightweightString<wchar_t>& category) const {
    std::vector<Zn::Ptr<Tutorial>> out;
    for (const auto& t : tutorials_)
        if (t->getCategory() == category) out.push_back(t);
    return out;
}

void TutorialsManager::buildCategories() {
    categories_.clear();
    for (const auto& t : tutorials_) categories_.insert(t->getCategory());
}
