// The order of the start and of the stop: what is read and written, asked and shown, in one list.

#include <set>

#include "engine/day_driver.h"
#include "lang/form_language.h"
#include "lang/language_pack.h"
#include "support/program_test.h"

namespace horavex {
namespace {

using testing::AnyOf;
using testing::EndsWith;
using testing::HasSubstr;
using testing::Not;

/// Files that stand for a step; the others are read all along.
const std::set<std::string> kWatchedFiles = {
    "Athan/athan.mp3", "Athan/athan1.mp3", "Dat/A.dat",     "Dat/AI.DAT",
    "Dat/CI.DAT",      "Dat/Settings.DAT", "Dat/update.txt"};

class WatchedFiles : public Files {
public:
    WatchedFiles(Files& files, DesktopLog& log) : files_(files), log_(log) {}

    std::unique_ptr<OpenFile> OpenForReading(const std::string& path) override {
        Note("read ", path);
        return files_.OpenForReading(path);
    }
    std::unique_ptr<OutputFile> OpenForWriting(const std::string& path) override {
        return files_.OpenForWriting(path);
    }
    void WriteWhole(const std::string& path, ByteView bytes) override {
        Note("write ", path);
        files_.WriteWhole(path, bytes);
    }
    void Delete(const std::string& path) override {
        Note("delete ", path);
        files_.Delete(path);
    }
    bool Exists(const std::string& path) override { return files_.Exists(path); }
    std::vector<std::string> List(const std::string& folder) override {
        return files_.List(folder);
    }

private:
    void Note(const char* action, const std::string& path) {
        const std::string name = path.substr(std::string("/program/").size());
        if (kWatchedFiles.contains(name)) {
            log_.Note(action + name);
        }
    }

    Files& files_;
    DesktopLog& log_;
};

class WatchedRegistry : public RegistryStore {
public:
    WatchedRegistry(RegistryStore& store, DesktopLog& log) : store_(store), log_(log) {}

    std::int32_t OpenKey(const std::string& key, std::int32_t access) override {
        return store_.OpenKey(key, access);
    }
    std::int32_t CreateKey(const std::string& key) override { return store_.CreateKey(key); }
    std::int32_t QueryValue(const std::string& key, const std::string& valueName,
                            std::string& value) override {
        log_.Note("get " + valueName);
        return store_.QueryValue(key, valueName, value);
    }
    std::int32_t SetValue(const std::string& key, const std::string& valueName,
                          const std::string& value) override {
        log_.Note("set " + valueName + "=" + value);
        return store_.SetValue(key, valueName, value);
    }
    std::int32_t DeleteValue(const std::string& key, const std::string& valueName) override {
        return store_.DeleteValue(key, valueName);
    }
    std::int32_t DeleteKey(const std::string& key) override { return store_.DeleteKey(key); }

private:
    RegistryStore& store_;
    DesktopLog& log_;
};

class WatchedGuard : public InstanceGuard {
public:
    explicit WatchedGuard(DesktopLog& log) : log_(log) {}

    bool AnotherIsRunning() override {
        log_.Note("another instance?");
        ++questions_;
        return questions_ >= firstYes;
    }

    int firstYes = 1000;  // the question from which on another instance is running

private:
    DesktopLog& log_;
    int questions_ = 0;
};

class WatchedDialogs : public Dialogs {
public:
    explicit WatchedDialogs(DesktopLog& log) : log_(log) {}

    void ShowMessage(const std::string& text, const std::string&, MessageIcon) override {
        log_.Note("message " + text);
    }
    std::string OpenFile(const FileRequest&) override { return {}; }
    void Beep() override { log_.Note("beep"); }
    std::string SaveFile(const FileRequest&, const std::string&) override { return {}; }

private:
    DesktopLog& log_;
};

/// Controls whose change stands for a step.
const std::set<std::string> kWatchedControls = {
    "frmMain.lblTime_0",        "frmMain.lblCity",
    "frmMain.tmrUpdate",        "frmMain.lblQibla",
    "frmMain.mnuL_0",           "frmMain.mnuExport",
    "HoravexMainForm.fraCity",  "HoravexMainForm.lblZoritName_0",
    "HoravexMainForm.cmdQibla", "HoravexMainForm.lblAlarm",
    "HoravexMainForm.lblCity",  "HoravexMainForm.mnuSound"};

class WatchedForm : public FormObserver {
public:
    WatchedForm(Form& form, DesktopLog& log) : form_(form), log_(log) { form_.SetObserver(this); }
    ~WatchedForm() override { form_.SetObserver(nullptr); }

    void ControlChanged(Control& control) override {
        const std::string name = form_.Name() + "." + control.Name() + ControlIndexSuffix(control);
        if (kWatchedControls.contains(name)) {
            log_.Note(name);
        }
    }

    /// Topics of the list of languages come and go while it is filled.
    void FormChanged() override {
        if (form_.HelpContextId() % 1000 == 0 && form_.HelpContextId() != topic_) {
            topic_ = form_.HelpContextId();
            log_.Note("help topic " + std::to_string(topic_));
        }
    }

private:
    Form& form_;
    DesktopLog& log_;
    int topic_ = 0;
};

/// The program over ports that write all down. It speaks French, so that a translation changes
/// captions, has one built-in sound and a scratch file of the update.
struct OrderTest : ProgramTest {
    OrderTest() {
        InstallPlatform(&ports);
        LoadActiveSettings();
        ActiveSettings.Language = 2;
        SaveActiveSettings();
        Settings = ActiveSettings;
        SaveWorkingSettings();
        platform.registry.CreateKey("Software\\Horavex\\Settings");
        platform.files.WriteWhole("/program/Athan/athan1.mp3", BytesOf("sound"));
        platform.files.WriteWhole("/program/Dat/update.txt", BytesOf("4.1.0.2"));
        platform.desktop.calls.clear();
    }

    /// What has happened, a line each, equal neighbours told once.
    std::string Calls() const {
        std::string lines;
        std::string last;
        for (const std::string& call : platform.desktop.calls) {
            if (call != last) {
                lines += call + "\n";
            }
            last = call;
        }
        return lines;
    }

    WatchedFiles files{platform.failingFiles, platform.desktop};
    ProgramFolder folder{files, "/program", "/program"};
    WatchedRegistry registry{platform.registry, platform.desktop};
    WatchedGuard guard{platform.desktop};
    WatchedDialogs dialogs{platform.desktop};
    const Platform ports{platform.clock,
                         platform.loop,
                         files,
                         folder,
                         platform.formats,
                         dialogs,
                         registry,
                         guard,
                         platform.face,
                         platform.windows,
                         platform.tray,
                         platform.shell,
                         platform.network,
                         platform.athanFace,
                         platform.audioFile,
                         platform.audioPlayer,
                         platform.zoneRules,
                         platform.whereabouts,
                         platform.notices,
                         platform.mediaPlayers,
                         platform.session,
                         platform.almanac,
                         platform.broadcast};
    WatchedForm face{*frmMain, platform.desktop};
    WatchedForm settings{*HoravexMainForm, platform.desktop};
};

/// Up to the question for another instance. Without a stored angle this is a first run.
const std::string kReads = R"(load frmMain
audio mode 2
load HoravexMainForm
delete Dat/update.txt
get ADD TO STARTUP
get Custom Athan File0
get Custom Athan File1
get Isha Dep Angle
set Isha Dep Angle=18
get Isha Dep Angle
WriteStartupEntry ZORIT
read Dat/AI.DAT
another instance?
)";

/// The fixed spellings, the stored place and what depends on it.
const std::string kStoredPlace = R"(load fMessage
HoravexMainForm.lblZoritName_0
read Dat/CI.DAT
HoravexMainForm.cmdQibla
)";

/// The year, the window translated and filled, the accepted state, the sounds and the icon.
const std::string kHiddenWindow = R"(show fMessage
frmMain.lblTime_0
unload fMessage
help topic 2000
HoravexMainForm.fraCity
HoravexMainForm.cmdQibla
HoravexMainForm.lblAlarm
HoravexMainForm.lblCity
read Dat/A.dat
read Dat/Settings.DAT
read Athan/athan1.mp3
write Athan/athan.mp3
HoravexMainForm.mnuSound
TrayAdd Horavex
)";

/// The clock, the face, the language menu and the face's window translated.
const std::string kFace = R"(frmMain.lblCity
frmMain.tmrUpdate
frmMain.lblQibla
get Language
Place -89 -67
LoadMovie 0 \\skin\skin.swf
show frmMain
frmMain.mnuL_0
frmMain.mnuExport
)";

/// The wizard of a first run, between the face and the second line of defence.
const std::string kWizard = R"(read Dat/A.dat
load frmWizard
show frmWizard
another instance?
)";

using StartOrderTest = OrderTest;

TEST_F(StartOrderTest, FirstRunGoesThroughEveryStepInTurn) {
    Start();
    EXPECT_EQ(Calls(), kReads + kStoredPlace + kHiddenWindow + kFace + kWizard);
}

TEST_F(StartOrderTest, SecondInstanceEndsBehindTheReadsWithItsMessage) {
    guard.firstYes = 1;
    LastRefreshDate = 0.0;
    NextPrayer = 5;
    EXPECT_THROW(Start(), ProcessEnded);
    EXPECT_EQ(Calls(), kReads + "message Horavex est déjà en cours d’exécution.\n");
    EXPECT_EQ(LastRefreshDate, platform.clock.Today());
    EXPECT_EQ(NextPrayer, -1);
}

TEST_F(StartOrderTest, InstanceThatCameUpMeanwhileEndsTheStartAtItsVeryEnd) {
    guard.firstYes = 2;
    EXPECT_THROW(Start(), ProcessEnded);
    EXPECT_EQ(Calls(), kReads + kStoredPlace + kHiddenWindow + kFace + kWizard);
}

TEST_F(StartOrderTest, FirstRunChoosesTheSoundBeforeTheStoredSettingsAreRead) {
    ActiveSettings.AthanType = kMuteAthan;
    SaveActiveSettings();
    Settings.AthanType = kMuteAthan;
    guard.firstYes = 1;
    EXPECT_THROW(Start(), ProcessEnded);
    EXPECT_EQ(Settings.AthanType, kSoundAthan);
    EXPECT_EQ(ActiveSettings.AthanType, kMuteAthan);
}

TEST_F(StartOrderTest, WithoutStoredSettingsTheWindowIsAskedForInPlaceOfTheYear) {
    platform.files.Delete("/program/Dat/AI.DAT");
    Start();
    EXPECT_THAT(Calls(), HasSubstr("read Dat/CI.DAT\nshow HoravexMainForm\n"
                                   "HoravexMainForm.cmdQibla\nHoravexMainForm.lblAlarm\n"));
    EXPECT_THAT(Calls(), Not(HasSubstr("show fMessage")));
}

TEST_F(StartOrderTest, FailedYearOpensTheWindowOnceItIsTranslated) {
    ActiveSettings.FajrAngle = 1.0;  // a dawn of some four minutes
    SaveActiveSettings();
    Start();
    EXPECT_THAT(Calls(), HasSubstr("help topic 2000\nHoravexMainForm.fraCity\n"
                                   "HoravexMainForm.cmdQibla\nshow HoravexMainForm\n"
                                   "HoravexMainForm.lblAlarm\n"));
}

TEST_F(StartOrderTest, FirstShownDayHasNoNamesYetSinceTheLanguageComesLater) {
    std::string sentence;
    platform.loop.After(1.0, [&] { sentence = frmMain->lblNextAthan.Caption(); });
    Start();
    EXPECT_EQ(sentence, " 12:06:28 PM");
}

struct StopOrderTest : OrderTest {
    StopOrderTest() {
        Start();
        currentLanguage = "Spanish";
        platform.desktop.calls.clear();
    }
};

TEST_F(StopOrderTest, ExitStoresTheLanguageThenTakesTheIconAwayThenEnds) {
    EXPECT_THROW(frmMain->mnuExit.UserClick(), ProcessEnded);
    EXPECT_EQ(Calls(), "set Language=Spanish\nTrayRemove\n");
    EXPECT_TRUE(frmMain->IsLoaded()) << "no window unloads";
}

TEST_F(StopOrderTest, EndOfTheSessionUnloadsTheFaceAndDoesNothingElse) {
    frmMain->Unload(CloseReason::kSessionEnd);
    EXPECT_THAT(Calls(), EndsWith("unload frmMain\n"));
    EXPECT_THAT(Calls(), Not(AnyOf(HasSubstr("TrayRemove"), HasSubstr("set "))));
}

TEST_F(StopOrderTest, TaskManagerUnloadsTheFaceToo) {
    frmMain->Unload(CloseReason::kTaskManager);
    EXPECT_THAT(Calls(), EndsWith("unload frmMain\n"));
    EXPECT_THAT(Calls(), Not(AnyOf(HasSubstr("TrayRemove"), HasSubstr("set "))));
}

TEST_F(StopOrderTest, CloseFromCodeHidesTheFace) {
    frmMain->Unload(CloseReason::kCode);
    EXPECT_TRUE(frmMain->IsLoaded());
    EXPECT_FALSE(frmMain->Visible());
    EXPECT_EQ(Calls(), "");
}

}  // namespace
}  // namespace horavex
