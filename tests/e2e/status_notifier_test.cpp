#include <gmock/gmock.h>

#include <memory>

#include "e2e/harness/program_fixture.h"
#include "e2e/harness/status_notifier_host.h"
#include "e2e/harness/wait_until.h"

namespace horavex {
namespace {

using testing::ContainsRegex;
using testing::HasSubstr;
using testing::Not;

/// The program's icon in a panel that speaks over the bus and draws the menu itself.
class StatusNotifierTest : public ProgramFixture {
protected:
    /// Waits for a tip that tells of the next prayer.
    std::string Tip(const StatusNotifierHost& host, const std::string& mark) {
        std::string tip;
        WaitUntil("a tip", [&] {
            tip = host.PropertyOf("ToolTip");
            return tip.find(mark) != std::string::npos;
        });
        return tip;
    }
};

TEST_F(StatusNotifierTest, IconComesWithPicturesAndTheTip) {
    StatusNotifierHost host(desktop);
    const ChildProcess program = StartProgram();
    desktop.WaitForWindow(program, kFaceTitle);
    host.AwaitIcon();
    EXPECT_THAT(Tip(host, "Next Athan:"),
                ContainsRegex("Next Athan:Asr at 3:1[45]:[0-9]+ PM Remaining:[0-9]:"));
    EXPECT_THAT(host.PropertyOf("IconPixmap"), HasSubstr("int32 22"));
}

TEST_F(StatusNotifierTest, TipFollowsTheClock) {
    StatusNotifierHost host(desktop);
    const ChildProcess program = StartProgram();
    desktop.WaitForWindow(program, kFaceTitle);
    host.AwaitIcon();
    const std::string first = Tip(host, "Remaining:");
    EXPECT_TRUE(WaitUntil("another tip", [&] { return host.PropertyOf("ToolTip") != first; }));
}

TEST_F(StatusNotifierTest, ArabicTipBeginsWithTheRemainingTime) {
    desktop.StoreRegistryValue("Language", "Arabic");
    StatusNotifierHost host(desktop);
    const ChildProcess program = StartProgram();
    desktop.WaitForWindow(program, kFaceTitle);
    host.AwaitIcon();
    EXPECT_THAT(Tip(host, "المتبقي"), ContainsRegex("\"الوقت المتبقي:[0-9:]+الأذان التالي:"));
}

TEST_F(StatusNotifierTest, TwoActivationsInQuickSuccessionBringTheFaceBack) {
    StatusNotifierHost host(desktop);
    const ChildProcess program = StartProgram();
    const std::string face = desktop.WaitForWindow(program, kFaceTitle);
    host.AwaitIcon();
    desktop.Click(face, 397, 23);
    WaitUntil("a hidden face", [&] { return !desktop.IsOnView(program, face); });
    host.Activate();
    EXPECT_FALSE(desktop.IsOnView(program, face));
    host.Activate();
    EXPECT_TRUE(WaitUntil("the face", [&] { return desktop.IsOnView(program, face); }));
}

TEST_F(StatusNotifierTest, MenuSpeaksTheLanguageAndItsEntriesReachTheirRoutines) {
    desktop.StoreRegistryValue("Language", "German");
    StatusNotifierHost host(desktop);
    ChildProcess program = StartProgram();
    const std::string face = desktop.WaitForWindow(program, kFaceTitle);
    host.AwaitIcon();
    LetSecondsPass(1);
    EXPECT_THAT(host.Menu(), HasSubstr("Beenden"));
    const std::string show = "_Gebetszeiten";
    host.Choose(show);
    EXPECT_TRUE(WaitUntil("a hidden face", [&] { return !desktop.IsOnView(program, face); }));
    host.Choose(show);
    EXPECT_TRUE(WaitUntil("the face", [&] { return desktop.IsOnView(program, face); }));
    host.Choose("_Beenden");
    EXPECT_EQ(program.Wait(), 0);
    EXPECT_THAT(StoredValues(), HasSubstr("Language=German"));
}

TEST_F(StatusNotifierTest, PanelThatComesLaterGetsTheIcon) {
    const ChildProcess program = StartProgram();
    desktop.WaitForWindow(program, kFaceTitle);
    StatusNotifierHost host(desktop);
    host.AwaitIcon();
    EXPECT_THAT(Tip(host, "Next"), Not(HasSubstr("Error")));
}

TEST_F(StatusNotifierTest, PanelThatStartsAnewGetsTheIconAgain) {
    auto host = std::make_unique<StatusNotifierHost>(desktop);
    const ChildProcess program = StartProgram();
    desktop.WaitForWindow(program, kFaceTitle);
    host->AwaitIcon();
    host.reset();
    host = std::make_unique<StatusNotifierHost>(desktop);
    host->AwaitIcon();
    EXPECT_THAT(Tip(*host, "Next"), Not(HasSubstr("Error")));
}

}  // namespace
}  // namespace horavex
