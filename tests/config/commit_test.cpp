// The set button's two paths on the files, byte by byte, and with every file call failing.

#include "config/settings_controls.h"
#include "config/settings_window.h"
#include "store/location_files.h"
#include "support/data_folder.h"
#include "support/program_test.h"
#include "windows/frm_wizard.h"

namespace horavex {
namespace {

/// A file of the long form: bytes behind the record that mean nothing, and a reserved field.
Bytes LongForm(const SettingsRecord& record) {
    Bytes bytes = RecordOf(record);
    bytes.resize(128, 0xEE);
    return bytes;
}

struct CommitTest : ProgramTest {
    CommitTest() {
        LoadActiveSettings();
        former = ActiveSettings;
        former.Reserved.fill(0x41);
        platform.files.WriteWhole(kActive, LongForm(former));
        platform.files.WriteWhole(kWorking, RecordOf(former));
        StartAgain();
    }

    Bytes Content(const std::string& path) { return ReadWhole(platform.files, path); }

    /// Values that differ from the stored ones in every field that the window has.
    void ChangeEverything() {
        form.hsDepr.UserSlide(17);
        form.hsDepr1.UserSlide(3);
        form.hsDepr2.UserSlide(16);
        form.hsDepr21.UserSlide(1);
        form.optAsrRatio(2).UserClick();
        form.chkDayLT.UserClick();
        form.hsBegin.UserSlide(99);
        form.hsEnd.UserSlide(299);
        form.optAthanType(kBuzzerAthan).UserClick();
        form.optQiblaMethod(2).UserClick();
        form.lstLanguage.UserSelect(1);
        form.hsAlarm.UserSlide(60);
        form.chkAlarm.UserClick();
        form.txtTimeZone.SetText("+3.25");
    }

    SettingsRecord Changed() const {
        SettingsRecord record = former;
        record.FajrAngle = 17.75;
        record.AsrRatio = 2.0;
        record.DstEnabled = 1;
        record.DstStart = 100;
        record.DstEnd = 300;
        record.AthanType = kBuzzerAthan;
        record.QiblaMethod = 2;
        record.Language = 2;
        record.TimeZone = 3.25;
        record.AlarmTime = 60;
        record.AlarmEnabled = 0;
        return record;
    }

    static constexpr const char* kActive = "/program/Dat/AI.DAT";
    static constexpr const char* kWorking = "/program/Dat/Settings.DAT";

    SettingsRecord former;
    SettingsForm& form = *HoravexMainForm;
};

TEST_F(CommitTest, AcceptedChangeIsInBothFilesByteForByte) {
    ChangeEverything();
    form.SettingsSet.UserClick();
    Bytes active = RecordOf(Changed());
    active.resize(128, 0xEE);
    EXPECT_EQ(Content(kActive), active) << "what lies behind the record stays";
    EXPECT_EQ(Content(kWorking), RecordOf(Changed()));
    EXPECT_EQ(Stored("Isha Dep Angle"), "16.25");
    EXPECT_TRUE(platform.dialogs.messages.empty());
}

TEST_F(CommitTest, FailedYearIsInTheWorkingFileAlone) {
    ChangeEverything();
    form.hsDepr.SetMin(1);
    form.hsDepr.UserSlide(1);
    form.SettingsSet.UserClick();
    ASSERT_EQ(CalcFailed, -1);
    SettingsRecord failed = Changed();
    failed.FajrAngle = 1.75;
    EXPECT_EQ(Content(kActive), LongForm(former));
    EXPECT_EQ(Content(kWorking), RecordOf(failed));
    EXPECT_EQ(Stored("Isha Dep Angle"), "16.25");
}

TEST_F(CommitTest, RefusedZoneWritesNothing) {
    ChangeEverything();
    form.txtTimeZone.SetText("12.01");
    form.SettingsSet.UserClick();
    EXPECT_EQ(Content(kActive), LongForm(former));
    EXPECT_EQ(Content(kWorking), RecordOf(former));
    EXPECT_EQ(Stored("Isha Dep Angle"), "18");
}

TEST_F(CommitTest, CommitCopiesTheCityToTheWizard) {
    form.lblCity.SetCaption("Somewhere");
    form.SettingsSet.UserClick();
    EXPECT_EQ(frmWizard->lblCity.Caption(), "Somewhere");
}

TEST_F(CommitTest, CityThatStaysIsNotShownAnew) {
    frmMain->lblCity.SetCaption("Somewhere");
    form.hsDepr.UserSlide(17);
    form.SettingsSet.UserClick();
    EXPECT_EQ(ActiveSettings.FajrAngle, 17.0);
    EXPECT_EQ(frmMain->lblCity.Caption(), "Somewhere");
}

class FailingCommit : public CommitTest, public testing::WithParamInterface<WriteFailure> {};

TEST_P(FailingCommit, LeavesEachFileOldOrNewWhicheverCallFails) {
    ChangeEverything();
    platform.failingFiles.FailCall(0);
    form.SettingsSet.UserClick();
    const int calls = platform.failingFiles.Calls();
    ASSERT_GT(calls, 10);
    const Bytes newActive = Content(kActive);
    const Bytes newRecord = RecordOf(Changed());  // where the bytes behind it could not be read
    const Bytes newWorking = Content(kWorking);
    int oldActive = 0;
    int oldWorking = 0;
    for (int call = 1; call <= calls; ++call) {
        platform.files.WriteWhole(kActive, LongForm(former));
        platform.files.WriteWhole(kWorking, RecordOf(former));
        Settings = Changed();
        ActiveSettings = former;
        form.txtTimeZone.SetText("+3.25");
        platform.failingFiles.FailCall(call, GetParam());
        form.SettingsSet.UserClick();
        platform.failingFiles.FailCall(0);
        const Bytes active = Content(kActive);
        const Bytes working = Content(kWorking);
        EXPECT_TRUE(active == newActive || active == newRecord || active == LongForm(former))
            << "call " << call;
        EXPECT_TRUE(working == newWorking || working == RecordOf(former)) << "call " << call;
        oldActive += active == LongForm(former) ? 1 : 0;
        oldWorking += working == RecordOf(former) ? 1 : 0;
    }
    EXPECT_GE(oldActive, 1) << "the write of each file was among the failed calls";
    EXPECT_GE(oldWorking, 1);
}

INSTANTIATE_TEST_SUITE_P(Writes, FailingCommit,
                         testing::Values(WriteFailure::kAtStart, WriteFailure::kHalfWay));

}  // namespace
}  // namespace horavex
