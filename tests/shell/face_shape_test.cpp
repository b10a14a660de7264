#include "shell/face_shape.h"

#include "shell/face_bridge.h"
#include "store/face_options.h"
#include "support/program_test.h"

namespace horavex {
namespace {

using testing::ElementsAre;

class FaceShapeTest : public ProgramTest {
protected:
    void Store(const WholeOption& option) {
        platform.registry.CreateKey("Software\\Horavex\\Options");
        platform.registry.SetValue("Software\\Horavex\\Options", option.name, "1");
    }
};

TEST_F(FaceShapeTest, WithoutAnOptionTheFaceStartsWholeAmongTheOtherWindows) {
    Start();
    EXPECT_EQ(platform.face.shape, FaceShape());
    EXPECT_THAT(platform.desktop.calls, testing::Not(testing::Contains("SetTopMost frmMain")));
    EXPECT_FALSE(frmMain->mnuSmall.Checked());
}

TEST_F(FaceShapeTest, EachIsTurnedOverByBothMenusAndChecked) {
    StartAgain();
    frmMain->mnuSmall.UserClick();
    EXPECT_EQ(platform.face.shape, (FaceShape{true, false}));
    EXPECT_TRUE(frmMain->mnuPopSmall.Checked());
    frmMain->mnuPopFullScreen.UserClick();
    EXPECT_EQ(platform.face.shape, (FaceShape{true, true}));
    EXPECT_TRUE(frmMain->mnuFullScreen.Checked());
    frmMain->mnuPopSmall.UserClick();
    frmMain->mnuFullScreen.UserClick();
    EXPECT_EQ(platform.face.shape, FaceShape());
    EXPECT_FALSE(frmMain->mnuSmall.Checked());
}

TEST_F(FaceShapeTest, FaceAsksForItByCommands) {
    StartAgain();
    OnFaceCommand("IDC_FS_small");
    OnFaceCommand("IDC_FS_fullScreen");
    EXPECT_EQ(platform.face.shape, (FaceShape{true, true}));
    OnFaceCommand("IDC_FS_fullScreen");
    EXPECT_EQ(platform.face.shape, (FaceShape{true, false}));
}

TEST_F(FaceShapeTest, AboveIsTakenAtOnceAndGivenUpAgain) {
    StartAgain();
    frmMain->mnuAbove.UserClick();
    frmMain->mnuPopAbove.UserClick();
    EXPECT_THAT(platform.desktop.calls, ElementsAre("SetTopMost frmMain", "SetNotTopMost frmMain"));
}

TEST_F(FaceShapeTest, AboveIsGivenUpWhileTheFaceFillsTheScreen) {
    StartAgain();
    frmMain->mnuAbove.UserClick();
    frmMain->mnuFullScreen.UserClick();
    EXPECT_TRUE(frmMain->mnuAbove.Checked());
    frmMain->mnuFullScreen.UserClick();
    EXPECT_THAT(platform.desktop.calls,
                ElementsAre("SetTopMost frmMain", "SetNotTopMost frmMain", "SetTopMost frmMain"));
}

TEST_F(FaceShapeTest, EachIsTurnedOverWhereNothingCanBeStored) {
    Store(option::kFaceFullScreen);
    StartAgain();
    platform.registry.DenyWriting(true);
    OnFaceCommand("IDC_FS_fullScreen");
    EXPECT_EQ(platform.face.shape, FaceShape());
    EXPECT_FALSE(frmMain->mnuFullScreen.Checked());
    frmMain->mnuSmall.UserClick();
    EXPECT_EQ(platform.face.shape, (FaceShape{true, false}));
    frmMain->mnuAbove.UserClick();
    EXPECT_THAT(platform.desktop.calls, ElementsAre("SetTopMost frmMain"));
}

TEST_F(FaceShapeTest, WhatWasChosenIsThereAgainAtTheNextStart) {
    Store(option::kFaceSmall);
    Store(option::kFaceFullScreen);
    Start();
    EXPECT_EQ(platform.face.shape, (FaceShape{true, true}));
    EXPECT_TRUE(frmMain->mnuFullScreen.Checked());
}

TEST_F(FaceShapeTest, AboveIsThereAgainAtTheNextStart) {
    Store(option::kFaceAbove);
    Start();
    EXPECT_THAT(platform.desktop.calls, testing::Contains("SetTopMost frmMain"));
    EXPECT_TRUE(frmMain->mnuAbove.Checked());
}

}  // namespace
}  // namespace horavex
