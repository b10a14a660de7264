#include "timetables/export_command.h"

#include "athan/athan_state.h"
#include "athan/message_window.h"
#include "base/fault.h"
#include "timetables/sample_timetable.h"
#include "windows/f_message.h"

namespace horavex {
namespace {

using testing::HasSubstr;

constexpr int kPumpsOfACommonYear = 365 + 12 * 2;

class ExportCommandTest : public TimetableTest {
protected:
    ExportCommandTest() {
        BindMessageWindow();
        platform.dialogs.savedFile = "/home/year.txt";
    }

    double SecondsOfExport() {
        const double before = platform.clock.SteadySeconds();
        mnuExport_Click();
        return platform.clock.SteadySeconds() - before;
    }

    std::string Written() { return StringOf(platform.files.Contents("/home/year.txt")); }
};

TEST_F(ExportCommandTest, AsksForAFileOfAnyTypeUnderText) {
    mnuExport_Click();
    ASSERT_EQ(platform.dialogs.saveRequests.size(), 1U);
    const auto& [request, suffix] = platform.dialogs.saveRequests[0];
    EXPECT_EQ(request.filter,
              "Text Files (*.txt)|*.txt|RichText Files (*.doc)|*.doc|All Files (*.*)|*.*|HTML "
              "Files|*.html");
    EXPECT_EQ(request.filterIndex, 6);
    EXPECT_EQ(suffix, ".txt");
}

TEST_F(ExportCommandTest, WritesTheSamePlainTextWhateverTheType) {
    mnuExport_Click();
    const std::string text = Written();
    platform.dialogs.savedFile = "/home/year.html";
    mnuExport_Click();
    EXPECT_EQ(StringOf(platform.files.Contents("/home/year.html")), text);
    EXPECT_THAT(text, HasSubstr("December 2026."));
}

TEST_F(ExportCommandTest, ProgressWindowTellsTheFileAndOffersCancel) {
    bool seen = false;
    platform.loop.AtPump(200, [&] {
        EXPECT_EQ(fMessage->lblMessage1.Caption(), "Exporting the year. Please wait...");
        EXPECT_EQ(fMessage->lblMessage2.Caption(), "/home/year.txt");
        EXPECT_TRUE(fMessage->CmdCancel.Visible());
        EXPECT_TRUE(fMessage->Visible());
        EXPECT_FALSE(fMessage->IsModal());
        seen = true;
    });
    mnuExport_Click();
    EXPECT_TRUE(seen);
    EXPECT_FALSE(fMessage->IsLoaded());
}

TEST_F(ExportCommandTest, EventsAreDeliveredAfterEveryDayAndTwiceAMonth) {
    mnuExport_Click();
    EXPECT_EQ(platform.loop.Pumps(), kPumpsOfACommonYear);
}

TEST_F(ExportCommandTest, WindowStaysForSevenSecondsHoweverFast) {
    EXPECT_NEAR(SecondsOfExport(), 7.0, 0.02);
}

TEST_F(ExportCommandTest, CancelIsGoneWhileTheWindowOnlyWaits) {
    platform.loop.After(3.0, [] {
        EXPECT_TRUE(fMessage->Visible());
        EXPECT_FALSE(fMessage->CmdCancel.Visible());
    });
    mnuExport_Click();
    EXPECT_TRUE(platform.files.Exists("/home/year.txt"));
}

TEST_F(ExportCommandTest, EndsWithThePathOfTheFileAndAWayToItsFolder) {
    bool isTold = false;
    platform.loop.After(3.0, [&] {
        isTold = true;
        EXPECT_EQ(fMessage->lblMessage1.Caption(), "Saved as");
        EXPECT_EQ(fMessage->lblMessage2.Caption(), "/home/year.txt");
        EXPECT_FALSE(fMessage->Shape1.Visible());
        fMessage->cmdFolder.UserClick();
        EXPECT_THAT(platform.desktop.calls, testing::Contains("OpenAddress /home/"));
    });
    mnuExport_Click();
    EXPECT_TRUE(isTold);
    fMessage->Load();
    EXPECT_FALSE(fMessage->cmdFolder.Visible());
    EXPECT_TRUE(fMessage->Shape1.Visible());
}

TEST_F(ExportCommandTest, SlowExportWaitsForTheRestOnly) {
    platform.loop.AtPump(10, [&] { platform.clock.Advance(5.0); });
    EXPECT_NEAR(SecondsOfExport(), 7.0, 0.02);
    platform.loop.AtPump(platform.loop.Pumps() + 10, [&] { platform.clock.Advance(9.0); });
    EXPECT_NEAR(SecondsOfExport(), 9.0, 0.02);
}

TEST_F(ExportCommandTest, CancelAtAnyPumpDeletesTheFileWithoutWaiting) {
    for (int pump = 1; pump <= kPumpsOfACommonYear; ++pump) {
        platform.loop.AtPump(platform.loop.Pumps() + pump,
                             [&] { fMessage->CmdCancel.UserClick(); });
        EXPECT_EQ(SecondsOfExport(), 0.0) << pump;
        EXPECT_FALSE(platform.files.Exists("/home/year.txt")) << pump;
        EXPECT_FALSE(fMessage->IsLoaded()) << pump;
        EXPECT_TRUE(platform.dialogs.messages.empty());
    }
}

TEST_F(ExportCommandTest, CancelTakesTheFormerFileAlong) {
    platform.files.WriteWhole("/home/year.txt", BytesOf("last year's"));
    platform.loop.AtPump(40, [] { fMessage->CmdCancel.UserClick(); });
    mnuExport_Click();
    EXPECT_FALSE(platform.files.Exists("/home/year.txt"));
}

TEST_F(ExportCommandTest, DismissedAlarmEndsTheExportToo) {
    platform.loop.AtPump(40, [] { alarmDismissed = -1; });
    mnuExport_Click();
    EXPECT_FALSE(platform.files.Exists("/home/year.txt"));
}

TEST_F(ExportCommandTest, NextExportForgetsTheCancel) {
    platform.loop.AtPump(40, [] { fMessage->CmdCancel.UserClick(); });
    mnuExport_Click();
    mnuExport_Click();
    EXPECT_THAT(Written(), HasSubstr("December 2026."));
}

TEST_F(ExportCommandTest, CancelledDialogueWritesNothingAndLeavesTheWindowLoadedAndHidden) {
    platform.dialogs.savedFile = "";
    mnuExport_Click();
    EXPECT_TRUE(fMessage->IsLoaded());
    EXPECT_FALSE(fMessage->Visible());
    EXPECT_FALSE(fMessage->CmdCancel.Visible());
    EXPECT_EQ(platform.loop.Pumps(), 0);
}

TEST_F(ExportCommandTest, CancelledDialogueLeavesNoTextToTheNextMessage) {
    fMessage->Load();
    fMessage->lblMessage1.SetCaption("of the alarm");
    platform.dialogs.savedFile = "";
    mnuExport_Click();
    EXPECT_EQ(fMessage->lblMessage1.Caption(), "of the alarm");
}

TEST_F(ExportCommandTest, FileThatDoesNotOpenIsAFaultAndTheWindowIsNotShown) {
    platform.files.WriteWhole("/home/folder/x", {});
    platform.dialogs.savedFile = "/home/folder";
    platform.loop.AtPump(1, [] { ADD_FAILURE() << "the export has begun"; });
    EXPECT_THROW(mnuExport_Click(), FileFault);
    EXPECT_FALSE(fMessage->IsLoaded());
}

TEST_F(ExportCommandTest, WriteFaultTakesTheWindowAwayAndKeepsTheFormerFile) {
    platform.files.WriteWhole("/home/year.txt", BytesOf("last year's"));
    platform.loop.AtPump(100, [this] { platform.failingFiles.FailCall(1); });
    EXPECT_THROW(mnuExport_Click(), FileFault);
    EXPECT_FALSE(fMessage->IsLoaded());
    EXPECT_EQ(Written(), "last year's");
}

TEST_F(ExportCommandTest, FormerFileStaysUntilTheNewOneIsWhole) {
    platform.files.WriteWhole("/home/year.txt", BytesOf("last year's"));
    platform.loop.AtPump(kPumpsOfACommonYear, [this] { EXPECT_EQ(Written(), "last year's"); });
    platform.loop.After(3.0, [this] { EXPECT_THAT(Written(), HasSubstr("December 2026.")); });
    mnuExport_Click();
}

TEST_F(ExportCommandTest, CancelEndsTheRunAtItsDay) {
    platform.loop.AtPump(40, [] { fMessage->CmdCancel.UserClick(); });
    mnuExport_Click();
    // One day begins behind the cancel; the month that it ends is told and delivers twice.
    EXPECT_EQ(platform.loop.Pumps(), 40 + 2);
}

TEST_F(ExportCommandTest, BarNeverFills) {
    double most = 0.0;
    for (int pump = 1; pump <= kPumpsOfACommonYear; ++pump) {
        platform.loop.AtPump(pump, [&most] {
            for (const auto& step : fMessage->picProgress.drawing) {
                most = std::max(most, std::get<PolygonStep>(step).corners.at(1).x);
            }
        });
    }
    mnuExport_Click();
    EXPECT_DOUBLE_EQ(most, fMessage->picProgress.Width() * 11.0 / 12.0);
}

TEST_F(ExportCommandTest, NewYearDuringTheExportChangesNothingInIt) {
    mnuExport_Click();
    const std::string year = Written();
    platform.loop.AtPump(platform.loop.Pumps() + 100, [] {
        TakeYear(2028);
        Times[kFajr].fill(1.0);
        Daylight(121, 273);
    });
    mnuExport_Click();
    EXPECT_EQ(Written(), year);
}

}  // namespace
}  // namespace horavex
