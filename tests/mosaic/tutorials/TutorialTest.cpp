#include "tutorials/Tutorial.h"

#include "core/Utf8.h"
#include "platform/JSON.h"

#include <unistd.h>

#include <gtest/gtest.h>

#include <filesystem>
#include <fstream>

namespace {

class TutorialFile : public ::testing::Test {
protected:
    void SetUp() override {
        dir_ = std::filesystem::temp_directory_path() / ("mosaic-tutorial-" + std::to_string(::getpid()));
        std::filesystem::create_directories(dir_);
    }
    void TearDown() override { std::filesystem::remove_all(dir_); }

    LightweightString<wchar_t> path(const char* name) const { return fromUTF8((dir_ / name).string().c_str()); }
    std::string write(const char* name, const std::string& text) const {
        std::ofstream(dir_ / name) << text;
        return (dir_ / name).string();
    }
    std::string read(const LightweightString<wchar_t>& p) const {
        std::ifstream in(toUTF8(p).c_str());
        return std::string(std::istreambuf_iterator<char>(in), {});
    }
    // Reads a tutorial from JSON text.
    Zn::Ptr<Tutorial> fromText(const std::string& text) {
        write("t.ZnTutorial", text);
        return Zn::Ptr<Tutorial>(new Tutorial(path("t.ZnTutorial")));
    }
    // Saves and reads back.
    Zn::Ptr<Tutorial> roundTrip(Tutorial& t) {
        t.save(path("rt.ZnTutorial"));
        return Zn::Ptr<Tutorial>(new Tutorial(path("rt.ZnTutorial")));
    }

    std::filesystem::path dir_;
};

Zn::Ptr<Tutorial::Phase> phase() { return Zn::Ptr<Tutorial::Phase>(new Tutorial::Phase); }

} // namespace

TEST_F(TutorialFile, EveryFieldRoundTripsExceptWhatReadingAndWritingTreatDifferently) {
    Tutorial t;
    t.setName(L"Trim \u00e9t\u00e9");
    t.setCategory(L"Basics");
    t.addComponent({"Timeline", {10.25, 20.5}, {0, 0}, {1200, 300}});
    auto p = phase();
    p->pause = 2.5f;
    p->pointer.x = 0;
    p->pointer.y = 0;
    p->pointer.target = L"ignored when coordinates exist";
    p->message.text = L"Drag here";
    p->message.target = L"Timeline";
    p->message.relativity = kAbove;
    p->message.origin = kCentre;
    p->action.event = "drag";
    p->action.modifiers = Modifiers::Shift | Modifiers::Alt;
    t.addPhase(p);

    Zn::Ptr<Tutorial> back = roundTrip(t);
    EXPECT_EQ(back->getName(), t.getName());
    EXPECT_EQ(back->getCategory(), L"Basics");
    ASSERT_EQ(back->getComponents().size(), 1u);
    const auto& c = back->getComponents()[0];
    EXPECT_EQ(c.type, "Timeline");
    EXPECT_EQ(c.position, XY<double>(10.25, 20.5));
    EXPECT_EQ(c.initialPosition, c.position) << "copied from the position on reading";
    EXPECT_EQ(c.size, XY<double>(1200, 300));
    ASSERT_EQ(back->getNumPhases(), 1u);
    auto q = back->getPhase(0);
    EXPECT_FLOAT_EQ(q->pause, 2.5f);
    EXPECT_EQ(q->pointer.x, 0.0);
    EXPECT_EQ(q->pointer.y, 0.0);
    EXPECT_TRUE(q->pointer.target.empty()) << "coordinates win over a target on writing";
    EXPECT_EQ(q->message.text, L"Drag here");
    EXPECT_EQ(q->message.target, L"Timeline");
    EXPECT_EQ(q->message.relativity, kAbove);
    EXPECT_EQ(q->message.origin, kSiblingRelative) << "a target wins over an origin on writing";
    EXPECT_EQ(q->action.event, "drag");
    EXPECT_EQ(q->action.modifiers, t.getPhase(0)->action.modifiers);
    EXPECT_EQ(back->getPath(), path("rt.ZnTutorial"));
    EXPECT_EQ(back->getID(), L"rt.ZnTutorial");
}

TEST_F(TutorialFile, ReadingKeepsTheTargetAndTheOriginWhenAFileHasBoth) {
    auto t = fromText(R"({"phases":[{"pointer":{"target":"Viewer","x":5,"y":6},
        "message":{"origin":"TopLeft","target":"Viewer","relativity":"Below","text":"hi"}}]})");
    auto p = t->getPhase(0);
    EXPECT_EQ(p->pointer.target, L"Viewer");
    EXPECT_EQ(p->pointer.x, Tutorial::kNoCoordinate);
    EXPECT_EQ(p->message.origin, kTopLeft);
    EXPECT_TRUE(p->message.target.empty());
    EXPECT_EQ(p->message.relativity, kBelow) << "the side keeps its default";
}

TEST_F(TutorialFile, PointerValidityAndCoordinateDefaults) {
    auto t = fromText(R"({"phases":[{"pointer":{"x":7}}, {"pointer":{}}, {"pointer":{"y":3}}]})");
    EXPECT_TRUE(t->getPhase(0)->pointer.valid());
    EXPECT_EQ(t->getPhase(0)->pointer.y, Tutorial::kNoCoordinate);
    EXPECT_FALSE(t->getPhase(1)->pointer.valid());
    EXPECT_FALSE(t->getPhase(2)->pointer.valid()) << "y plays no part in validity";

    Tutorial w;
    auto invalid = phase();
    invalid->pointer.x = Tutorial::kNoCoordinate;
    invalid->pointer.y = 5;
    w.addPhase(invalid);
    w.save(path("w.ZnTutorial"));
    EXPECT_EQ(read(path("w.ZnTutorial")).find("pointer"), std::string::npos) << "an invalid pointer is left out";
    EXPECT_EQ(invalid->pointer.getDisplayString(), L",");
    invalid->pointer.target = L"Viewer";
    EXPECT_EQ(invalid->pointer.getDisplayString(), L"Viewer");
}

TEST_F(TutorialFile, PhaseTextBecomesTheMessageAndMovesIntoItOnSaving) {
    auto t = fromText(R"({"phases":[{"text":"From the phase"}, {"text":"Overridden","message":{"text":"Own"}}]})");
    EXPECT_TRUE(t->getPhase(0)->message.valid());
    EXPECT_EQ(t->getPhase(0)->message.text, L"From the phase");
    EXPECT_EQ(t->getPhase(0)->message.relativity, kBelow) << "with no message object read, the side keeps its default";
    EXPECT_EQ(t->getPhase(1)->message.text, L"Own");
    EXPECT_EQ(t->getPhase(1)->message.relativity, WidgetRelativityFromString("")) << "a message object without a side";
    t->save(path("moved.ZnTutorial"));
    auto root = JSON::parseFile(path("moved.ZnTutorial"));
    ASSERT_TRUE(root);
    auto first = root->getChild("phases")->getChild(static_cast<unsigned short>(0));
    EXPECT_FALSE(first->hasString("text"));
    ASSERT_TRUE(first->getChild("message"));
    EXPECT_EQ(first->getChild("message")->getWString("text"), L"From the phase");
}

TEST_F(TutorialFile, AMessageWithoutTextKeepsThePhaseTextThroughASaveAndALoad) {
    auto t = fromText(R"({"phases":[{"text":"Well done.","message":{"origin":"Centre"}},)"
                      R"({"text":"Kept","message":{"text":"","target":"Viewer","relativity":"Above"}}]})");
    auto back = roundTrip(*t);
    ASSERT_EQ(back->getNumPhases(), 2u);
    const Tutorial::Message& m = back->getPhase(0)->message;
    EXPECT_EQ(m.text, L"Well done.");
    EXPECT_EQ(m.origin, CoordinateOriginFromString("Centre")) << "the message was saved, origin and all";
    EXPECT_EQ(back->getPhase(1)->message.text, L"Kept") << "an empty text is no text of its own";
    EXPECT_EQ(back->getPhase(1)->message.target, L"Viewer");
}

TEST_F(TutorialFile, AnEmptyPhaseIsAnEmptyObjectAndReadsBackUnchanged) {
    Tutorial t;
    t.addPhase(phase());
    auto back = roundTrip(t);
    ASSERT_EQ(back->getNumPhases(), 1u);
    auto p = back->getPhase(0);
    EXPECT_FALSE(p->pointer.valid() || p->message.valid() || p->action.valid());
    EXPECT_EQ(p->pause, 0.0f);
    EXPECT_EQ(read(path("rt.ZnTutorial")).find("pause"), std::string::npos);
}

TEST_F(TutorialFile, CoordinatesPassThroughSinglePrecision) {
    Tutorial t;
    t.addComponent({"Viewer", {0.1, 0.2}, {}, {0.3, 0}});
    auto p = phase();
    p->pointer.x = 0.1;
    p->pointer.y = 1e-3;
    t.addPhase(p);
    auto back = roundTrip(t);
    EXPECT_EQ(back->getComponents()[0].position.x, static_cast<double>(0.1f));
    EXPECT_NE(back->getComponents()[0].position.x, 0.1);
    EXPECT_EQ(back->getPhase(0)->pointer.x, static_cast<double>(0.1f));
    EXPECT_EQ(back->getComponents()[0].size.x, static_cast<double>(0.3f));
}

TEST_F(TutorialFile, ModifiersAreWrittenInOrderReadByNameAndOnlyAdded) {
    Tutorial t;
    auto p = phase();
    p->action.event = "key";
    p->action.modifiers = 0x8; // no known bit
    t.addPhase(p);
    t.save(path("m.ZnTutorial"));
    std::string text = read(path("m.ZnTutorial"));
    EXPECT_NE(text.find("\"modifiers\""), std::string::npos) << "an unknown bit still gives the array";
    EXPECT_EQ(JSON::parseFile(path("m.ZnTutorial"))
                  ->getChild("phases")
                  ->getChild(static_cast<unsigned short>(0))
                  ->getChild("action")
                  ->getChild("modifiers")
                  ->getNumStringAttribs(),
              0);

    p->action.modifiers = Modifiers::Alt | Modifiers::Cmd | Modifiers::Control | Modifiers::Shift;
    t.save(path("m.ZnTutorial"));
    text = read(path("m.ZnTutorial"));
    EXPECT_LT(text.find("shift"), text.find("ctrl"));
    EXPECT_LT(text.find("ctrl"), text.find("cmd"));
    EXPECT_LT(text.find("cmd"), text.find("alt"));

    auto r = fromText(R"({"phases":[{"action":{"event":"k","modifiers":["alt","SHIFT","meta","ctrl"]}}]})");
    EXPECT_EQ(r->getPhase(0)->action.modifiers, Modifiers::Alt | Modifiers::Control);
    EXPECT_EQ(Tutorial::Action::asString(Modifiers::Cmd), "cmd");
    EXPECT_EQ(Tutorial::Action::asString(3), "");
}

TEST_F(TutorialFile, PhasesAndComponentsByIndexAndType) {
    Tutorial t;
    EXPECT_FALSE(t.getPhase(0)) << "no phases, no first phase";
    auto a = phase(), b = phase();
    t.addPhase(a);
    t.addPhase(b);
    EXPECT_FALSE(t.getPhase(2));
    auto copy = Zn::Ptr<Tutorial::Phase>(new Tutorial::Phase(*a));
    t.removePhase(copy);
    EXPECT_EQ(t.getNumPhases(), 2u) << "a copy is not the phase";
    t.removePhase(a);
    EXPECT_EQ(t.getPhase(0), b);

    t.addComponent({"Viewer", {1, 2}, {}, {}});
    t.addComponent({"Viewer", {3, 4}, {}, {}});
    EXPECT_EQ(t.getComponentPosition("Viewer"), XY<double>(3, 4)) << "the last of a type wins";
    EXPECT_EQ(t.getComponentPosition("viewer"), XY<double>(0, 0));
    EXPECT_EQ(t.getComponentPosition("Nothing"), XY<double>(0, 0));

    Tutorial clone(t);
    EXPECT_EQ(clone.getNumPhases(), 1u);
    EXPECT_NE(clone.getPhase(0), t.getPhase(0)) << "a copy shares no phase";
}

TEST_F(TutorialFile, UnreadableFilesLeaveAnEmptyDocumentWithItsPath) {
    write("bad.ZnTutorial", "{ \"name\": ");
    Tutorial bad(path("bad.ZnTutorial"));
    EXPECT_TRUE(bad.getName().empty());
    EXPECT_EQ(bad.getNumPhases(), 0u);
    EXPECT_EQ(bad.getID(), L"bad.ZnTutorial");
    Tutorial missing(path("missing.ZnTutorial"));
    EXPECT_EQ(missing.getPath(), path("missing.ZnTutorial"));
    auto odd = fromText(R"({"name":7,"phases":{"not":"an array"},"components":[{"type":["x"]}]})");
    EXPECT_EQ(odd->getNumPhases(), 0u);
    // Reading twice appends.
    auto twice = fromText(R"({"phases":[{}]})");
    twice->load(path("t.ZnTutorial"));
    EXPECT_EQ(twice->getNumPhases(), 2u);
}

TEST_F(TutorialFile, SavingReplacesTheFileWhole) {
    Tutorial t;
    t.setName(L"first");
    for (int i = 0; i < 50; ++i) t.addPhase(phase());
    t.save(path("s.ZnTutorial"));
    Tutorial small;
    small.setName(L"second");
    small.save(path("s.ZnTutorial"));
    Tutorial back(path("s.ZnTutorial"));
    EXPECT_EQ(back.getName(), L"second");
    EXPECT_EQ(back.getNumPhases(), 0u);
    for (auto& entry : std::filesystem::directory_iterator(dir_))
        EXPECT_EQ(entry.path().string().find(".tmp"), std::string::npos) << "no temporary file is left behind";
}
