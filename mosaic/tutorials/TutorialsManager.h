#pragma once

#include "Tutorial.h"
#include "value/Notifier.h"

#include <set>
#include <vector>

/// The catalogue of tutorials: the ".ZnTutorial" files of the "Tutorials" folder
/// under the application's data folder, read once at first use, grouped by
/// category. Listeners hear 10 when a tutorial is created, 11 when one is saved and
/// 12 when one is deleted, synchronously, with the tutorial as the payload.
/// Used on the user-interface thread.
class TutorialsManager : public Notifier {
public:
    enum { kCreated = 10, kSaved = 11, kDeleted = 12 };

    static TutorialsManager& instance();
    static LightweightString<wchar_t> getLocation();

    // Scans the folder as instance() does; for a catalogue of another folder.
    explicit TutorialsManager(const LightweightString<wchar_t>& location = getLocation());

    Zn::Ptr<Tutorial> createTutorial(const LightweightString<wchar_t>& name, const LightweightString<wchar_t>& category);
    void save(Zn::Ptr<Tutorial> tutorial);
    void deleteTutorial(Zn::Ptr<Tutorial> tutorial);
    // A copy outside the catalogue, with the same file; null for null.
    Zn::Ptr<Tutorial> clone(const Zn::Ptr<Tutorial>& tutorial) const;
    Zn::Ptr<Tutorial> getTutorial(const LightweightString<wchar_t>& id) const;
    std::vector<Zn::Ptr<Tutorial>> getCategoryContents(const LightweightString<wchar_t>& category) const;
    void buildCategories();

    const std::vector<Zn::Ptr<Tutorial>>& tutorials() const { return tutorials_; }
    const std::set<LightweightString<wchar_t>>& categories() const { return categories_; }

private:
    void notify(int code, const Zn::Ptr<Tutorial>& tutorial) const;

    LightweightString<wchar_t> location_;
    std::vector<Zn::Ptr<Tutorial>> tutorials_;
    std::set<LightweightString<wchar_t>> categories_;
};
