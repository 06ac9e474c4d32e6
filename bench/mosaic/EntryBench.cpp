// One key typed into an entry, from the key event to the box repainted on its
// canvas (the screen's composition is left out): into the address box and into a
// form's text entry. Each round types a digit and takes it back with Backspace, so
// the text stays the same; a round is two keys.
#include "controls/TitleTextBox.h"
#include "core/KeyCodes.h"
#include "draw/UifStd.h"
#include "entry/CustomTextBox.h"
#include "entry/IPAddressEntryBox.h"
#include "entry/fo_entry.h"
#include "entry/form.h"
#include "glob/GlobManager.h"

#include <benchmark/benchmark.h>

namespace {

void typeAndTakeBack(benchmark::State& state, TextBoxBase* box) {
    GlobManager& gm = GlobManager::instance();
    box->claimKbdFocus();
    box->setCursorPosition(0);
    gm.runUntilIdle();
    const LightweightString<wchar_t> before = box->getString();
    for (auto _ : state) {
        gm.dispatch(Event::text(L"7"));
        while (gm.processPending()) {}
        gm.dispatch(Event::key(Event::kKeyPress, Keys::Backspace));
        while (gm.processPending()) {}
    }
    if (box->getString() != before || !box->hasKbdFocus()) state.SkipWithError("the typing went elsewhere");
    state.SetItemsProcessed(2 * state.iterations());
}

void BM_KeyIntoAddressBox(benchmark::State& state) {
    StandardPanel::InitArgs args(400, 60);
    args.palette = UifStd::instance().getColourScheme();
    auto* host = new StandardPanel(args);
    host->setupRootPos({100, 100});
    GlobManager::instance().realize(host);
    IPAddressEntryBox::InitArgs boxArgs(L"10.0.0.1:80", true, static_cast<unsigned short>(TextBox::calcHeight()));
    auto* address = host->createWidget<IPAddressEntryBox>(boxArgs, Glob::BottomLeft(0, 0));
    typeAndTakeBack(state, address->entryBox(1));
    delete host;
}
BENCHMARK(BM_KeyIntoAddressBox)->Unit(benchmark::kMicrosecond);

void BM_KeyIntoFormEntry(benchmark::State& state) {
    auto* f = new form(400, 200, nullptr, 1, UifStd::instance().getColourScheme(), L"Form", 0.0);
    f->setupRootPos({100, 100});
    GlobManager::instance().realize(f);
    auto* entry = new fo_entry(360, static_cast<unsigned short>(UifStd::instance().getRowHeight()), 0, L"Title", 0, 0.5);
    f->m_add_element(entry);
    entry->m_set_entry(L"Take 12");
    typeAndTakeBack(state, entry->textBox()->getTextBox());
    delete f;
}
BENCHMARK(BM_KeyIntoFormEntry)->Unit(benchmark::kMicrosecond);

} // namespace
