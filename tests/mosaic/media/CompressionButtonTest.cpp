// The compression drop-down on the installed FFmpeg's answers, and the panel of a
// compression's settings.
#include "MediaTestSupport.h"
#include "media/CompressionFormatButton.h"
#include "media/CompressionSettingsPanel.h"
#include "params/UIBuilderParams.h"

using namespace MediaTestSupport;
using Zn::Image::Format;

namespace {

class CompressionButtons : public MediaTest {
protected:
    void SetUp() override {
        MediaTest::SetUp();
        b = host->add<CompressionFormatButton>(CompressionFormatButton::InitArgs(Compression::eExport, 0, 400, 30));
    }
    Format selected() const { return b->getCompressionFormat().code; }
    void show(const char* fileType, std::uint32_t uid) { b->setOutputFormat(fileType, tableFormat(uid)); }
    static ShotVideoMetadata ofWidth(int width) {
        ShotVideoMetadata f = tableFormat(4);
        f.width = width;
        return f;
    }
    CompressionFormatButton* b = nullptr;
};

} // namespace

TEST_F(CompressionButtons, StartEmptyThenOfferFFmpegsCodesAndKeepAValidOneAcrossAFormatChange) {
    EXPECT_TRUE(b->getCompressionFormat().code.isNone());
    EXPECT_TRUE(b->getBtn()->getItems().empty());
    show("mov", 27);
    EXPECT_EQ(selected(), Format("M701")) << "the first call selects the first code";
    EXPECT_TRUE(b->getBtn()->isActive());
    b->setCompressionFormat(VideoCompressionInfo(tableFormat(27), CompressionFormat(Format("apch"))));
    show("mov", 14);
    EXPECT_EQ(selected(), Format("apch")) << "still valid at 1080i, so kept";
    show("mov", 4);
    EXPECT_EQ(selected(), Format("apch"));
    EXPECT_TRUE(host->messages.empty()) << "calls send nothing";
}

TEST_F(CompressionButtons, FallBackByWidthToTheNamedCodesThenToTheFirstOffered) {
    show("mov", 4);
    b->setCompressionFormat(VideoCompressionInfo(tableFormat(4), CompressionFormat(Format("M101"))));
    show("mov", 27);
    EXPECT_EQ(selected(), Format("M701"));
    show("mov", 4);
    EXPECT_EQ(selected(), Format("MMES"));

    // The same fallback with a list that has only the second choices.
    const VectorExt<Format> seconds{Format("apcn"), Format("M101"), Format("M102")};
    b->setCompressionFormat(VideoCompressionInfo(ofWidth(720), CompressionFormat(Format("apcn"))), seconds);
    b->setSelected(CompressionFormat(Format("MMES")), ofWidth(720));
    EXPECT_EQ(selected(), Format("M101")) << "720 wide is standard definition";
    b->setSelected(CompressionFormat(Format("MMES")), ofWidth(721));
    EXPECT_EQ(selected(), Format("M102")) << "721 wide is not";
    b->setCompressionFormat(VideoCompressionInfo(ofWidth(721), CompressionFormat(Format("M102"))), VectorExt<Format>{Format("apcn"), Format("FFV1")});
    b->setSelected(CompressionFormat(Format("MMES")), ofWidth(721));
    EXPECT_EQ(selected(), Format("apcn"));
    b->setSelected(CompressionFormat(), ofWidth(721));
    EXPECT_EQ(selected(), Format("apcn")) << "no compression changes nothing";

    show("webm", 28);
    EXPECT_EQ(selected(), Format("vp09")) << "none of the named codes is written in WebM";
}

TEST_F(CompressionButtons, AFileTypeWithNoCompressionLeavesTheButtonInactiveAndReadingNone) {
    show("mov", 27);
    show("dv", 27);
    EXPECT_FALSE(b->getBtn()->isActive());
    EXPECT_TRUE(b->getBtn()->getItems().empty());
    EXPECT_TRUE(selected().isNone());
    show("dv", 4);
    EXPECT_TRUE(b->getBtn()->isActive());
    EXPECT_EQ(selected(), Format("dvsd"));
}

TEST_F(CompressionButtons, OnlyTheUsersChoiceTellsTheOwner) {
    show("mov", 27);
    chooseRow(b->getBtn(), 1);
    EXPECT_EQ(host->count(CompressionFormatButton::CompressionFormatChangedMsg), 1);
    EXPECT_EQ(selected(), b->getValidFormats()[1]);
    show("mov", 14);
    EXPECT_EQ(host->count(CompressionFormatButton::CompressionFormatChangedMsg), 1);
}

TEST_F(CompressionButtons, SettingsSurviveRemakingThePanelThroughItsStore) {
    configb state;
    auto make = [&](configb* s) {
        CompressionSettingsPanel::InitArgs args(CompressionSettingsPanel::makeParams(Format("M101")), s, 300);
        auto* p = new CompressionSettingsPanel(args);
        TestKit::realize(p, {700, 300});
        return p;
    };
    CompressionSettingsPanel* p = make(&state);
    const UIBuilder::ParamList& params = p->getParams()->params();
    ASSERT_EQ(params.size(), 2u);
    params[0]->setValueFromString(L"22.5");
    params[1]->setValueFromString(L"6");
    delete p;
    p = make(&state);
    EXPECT_EQ(p->getParams()->params()[0]->getValueAsString(), L"22.5");
    EXPECT_EQ(p->getParams()->params()[1]->getValueAsString(), L"6");
    delete p;

    configb untouched = state;
    p = make(nullptr);
    EXPECT_EQ(p->getParams()->params()[0]->getValueAsString(), L"15") << "no store, the defaults";
    p->getParams()->params()[0]->setValueFromString(L"40");
    delete p;
    EXPECT_EQ(state.entries(), untouched.entries());
    p = new CompressionSettingsPanel(CompressionSettingsPanel::InitArgs({}, &state, 300));
    EXPECT_EQ(p->getUserArea().height(), 0);
    delete p;
}
