#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <chrono>
#include <csignal>
#include <cstdlib>
#include <fstream>
#include <thread>

#include "e2e/harness/program_fixture.h"
#include "e2e/harness/wait_until.h"

namespace horavex {
namespace {

using std::chrono::steady_clock;
using testing::HasSubstr;
using testing::IsEmpty;
using testing::Not;

using FaceProgramTest = ProgramFixture;

TEST_F(FaceProgramTest, FaceComesUpAfterTheProgressWindow) {
    const auto start = steady_clock::now();
    const ChildProcess program = StartProgram();
    const std::string progress = desktop.WaitForWindow(program, kProgressTitle);
    desktop.SaveScreen("progress");
    const std::string face = desktop.WaitForWindow(program, kFaceTitle);
    EXPECT_GE(steady_clock::now() - start, std::chrono::seconds(3));
    EXPECT_FALSE(desktop.IsOnView(program, progress));
    EXPECT_EQ(desktop.PlaceOf(face).width, 420);
    EXPECT_EQ(desktop.PlaceOf(face).height, 500);
    EXPECT_THAT(desktop.ErrorsOf("horavex"), IsEmpty());
}

TEST_F(FaceProgramTest, FaceChangesWithEverySecond) {
    const ChildProcess program = StartProgram();
    desktop.WaitForWindow(program, kFaceTitle);
    LetSecondsPass(3);
    EXPECT_TRUE(program.IsRunning());
}

TEST_F(FaceProgramTest, FaceOfADesktopWithoutAnyFontComesUpAndStays) {
    programVariables["FONTCONFIG_FILE"] = desktop / "no_fonts.conf";
    std::ofstream(desktop / "no_fonts.conf") << "<fontconfig></fontconfig>\n";
    ChildProcess program = StartProgram();
    desktop.WaitForWindow(program, kFaceTitle);
    std::this_thread::sleep_for(std::chrono::seconds(2));  // two ticks, which nothing shows
    EXPECT_TRUE(program.IsRunning());
    program.Signal(SIGTERM);
    EXPECT_EQ(program.Wait(), 0);
}

TEST_F(FaceProgramTest, FaceIsMinimised) {
    const ChildProcess program = StartProgram();
    const std::string face = desktop.WaitForWindow(program, kFaceTitle);
    desktop.Click(face, 369, 23);
    EXPECT_TRUE(WaitUntil("a minimised face", [&] {
        return desktop.Use({"xprop", "-id", face, "WM_STATE"}).find("Iconic") != std::string::npos;
    }));
}

TEST_F(FaceProgramTest, FaceIsDraggedByItsGround) {
    const ChildProcess program = StartProgram();
    const std::string face = desktop.WaitForWindow(program, kFaceTitle);
    const ScreenPlace before = desktop.PlaceOf(face);
    desktop.Use({"xdotool", "mousemove", "--window", face, "30", "150", "mousedown", "1"});
    // The window manager takes the pointer over; it follows from then on.
    const auto follows = [&] {
        desktop.Use({"xdotool", "mousemove_relative", "--", "10", "6"});
        return desktop.PlaceOf(face).x > before.x + 20;
    };
    EXPECT_TRUE(WaitUntil("a window that follows the pointer", follows));
    desktop.Use({"xdotool", "mouseup", "1"});
    EXPECT_GT(desktop.PlaceOf(face).y, before.y);
}

TEST_F(FaceProgramTest, FaceThatWasMovedComesUpAtItsOwnPlaceAtTheNextStart) {
    ScreenPlace own;
    {
        ChildProcess program = StartProgram();
        const std::string face = desktop.WaitForWindow(program, kFaceTitle);
        own = desktop.PlaceOf(face);
        desktop.Use({"xdotool", "windowmove", "--sync", face, "11", "17"});
        EXPECT_NE(desktop.PlaceOf(face).x, own.x);
        LetSecondsPass(1);
        kill(program.Id(), SIGTERM);
        EXPECT_EQ(program.Wait(), 0);
    }
    const ChildProcess program = StartProgram();
    const ScreenPlace place = desktop.PlaceOf(desktop.WaitForWindow(program, kFaceTitle));
    EXPECT_EQ(place.x, own.x);
    EXPECT_EQ(place.y, own.y);
}

TEST_F(FaceProgramTest, MenuOpensBelowItsButtonAndItsExitEndsTheProgram) {
    ChildProcess program = StartProgram();
    const std::string face = desktop.WaitForWindow(program, kFaceTitle);
    const auto windows = desktop.WindowsOf(program);
    desktop.Click(face, 78, 120);
    const std::string menu = desktop.WaitForMenu(program, windows);
    desktop.SaveScreen("menu");
    desktop.ChooseLastEntry(menu);
    EXPECT_EQ(program.Wait(), 0);
    EXPECT_THAT(StoredValues(), HasSubstr("Language=English"));
}

TEST_F(FaceProgramTest, RightButtonOpensNoMenu) {
    const ChildProcess program = StartProgram();
    const std::string face = desktop.WaitForWindow(program, kFaceTitle);
    const std::size_t windows = desktop.WindowsOf(program).size();
    desktop.Click(face, 200, 150, 3);
    desktop.Use({"xdotool", "windowactivate", "--sync", face, "key", "Menu"});
    LetSecondsPass(2);
    EXPECT_EQ(desktop.WindowsOf(program).size(), windows);
}

TEST_F(FaceProgramTest, EndOfTheSessionEndsTheProgramWithNothingSaved) {
    ChildProcess program = StartProgram();
    desktop.WaitForWindow(program, kFaceTitle);
    program.Signal(SIGTERM);
    EXPECT_EQ(program.Wait(), 0);
    EXPECT_THAT(StoredValues(), Not(HasSubstr("Language")));
}

TEST_F(FaceProgramTest, SecondStartSaysSoAndLeavesTheFirstAlone) {
    const ChildProcess first = StartProgram();
    const std::string face = desktop.WaitForWindow(first, kFaceTitle);
    ChildProcess second = StartProgram();
    const std::string message = desktop.WaitForWindow(second, "Horavex");
    desktop.SaveScreen("second-start");
    EXPECT_EQ(desktop.WindowsOf(second).size(), 1U);
    desktop.Use({"xdotool", "windowactivate", "--sync", message, "key", "Return"});
    EXPECT_EQ(second.Wait(), 0);
    EXPECT_TRUE(first.IsRunning());
    EXPECT_TRUE(desktop.IsOnView(first, face));
}

TEST_F(FaceProgramTest, StartWithoutItsFilesNamesOneAndEnds) {
    programVariables["HORAVEX_PROGRAM_FOLDER"] = desktop / "nothing";
    ChildProcess program = StartProgram();
    const std::string message = desktop.WaitForWindow(program, "Horavex");
    desktop.SaveScreen("no-files");
    desktop.Use({"xdotool", "windowactivate", "--sync", message, "key", "Return"});
    EXPECT_EQ(program.Wait(), EXIT_FAILURE);
}

}  // namespace
}  // namespace horavex
