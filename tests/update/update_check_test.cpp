#include "update/update_check.h"

#include "base/fault.h"
#include "base/program_version.h"
#include "engine/angle.h"
#include "lang/language_pack.h"
#include "support/test_platform.h"
#include "update/update_room.h"
#include "windows/frm_main.h"
#include "windows/horavex_main_form.h"

namespace horavex {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

constexpr const char* kFile = "/program/Dat/update.txt";
constexpr const char* kNothingNew = "No software update available at this time.";
constexpr const char* kNoAnswer = "Please check your internet connection and try again.";
constexpr const char* kUpdate =
    "Update Available.\r\n"
    "Please download the latest version of Horavex Prayer Time Software from "
    "https://horavex.invalid/";

/// What the label and the bar show, one line a change.
class ProgressLog : public FormObserver {
public:
    ProgressLog() { HoravexMainForm->SetObserver(this); }
    ~ProgressLog() override { HoravexMainForm->SetObserver(nullptr); }

    void ControlChanged(Control& control) override {
        if (&control == &HoravexMainForm->lblInternetConnect) {
            lines.push_back(control.Visible() ? control.Caption() : "no label");
        } else if (&control == &HoravexMainForm->ProgressBar1) {
            lines.push_back(control.Visible()
                                ? std::to_string(HoravexMainForm->ProgressBar1.Value())
                                : "no bar");
        }
    }
    void FormChanged() override {}

    std::vector<std::string> lines;
};

class UpdateCheckTest : public testing::Test {
protected:
    UpdateCheckTest() { platform.network.connection = {true, kLanConnection}; }

    void Publish(const std::string& body) {
        platform.network.answer = [body] { return body; };
    }

    std::vector<std::string> MessagesOf(void (*check)()) {
        platform.dialogs.messages.clear();
        check();
        std::vector<std::string> texts;
        for (const auto& message : platform.dialogs.messages) {
            EXPECT_EQ(message.title, "");
            texts.push_back(message.text);
        }
        return texts;
    }

    void ExpectAnswer(const std::string& body, const std::string& message) {
        Publish(body);
        EXPECT_THAT(MessagesOf(CheckForUpdate), ElementsAre(message)) << body;
    }

    TestPlatform platform;
};

TEST_F(UpdateCheckTest, EqualVersionIsNothingNew) {
    ExpectAnswer(RunningVersionText(), kNothingNew);
}

TEST_F(UpdateCheckTest, AnyDifferenceIsAnUpdateOlderNumbersIncluded) {
    ExpectAnswer("999.0.0", kUpdate);
    ExpectAnswer("0.9.9", kUpdate);
    ExpectAnswer(FullVersionText(), kUpdate);
}

TEST_F(UpdateCheckTest, ComparisonIsExact) {
    ExpectAnswer(RunningVersionText() + " ", kUpdate);
    ExpectAnswer(" " + RunningVersionText(), kUpdate);
    ExpectAnswer(RunningVersionText() + "\t\r\n", kUpdate);
}

TEST_F(UpdateCheckTest, EndOfTheLineIsNoPartOfIt) {
    ExpectAnswer(RunningVersionText() + "\n", kNothingNew);
    ExpectAnswer(RunningVersionText() + "\r\n", kNothingNew);
}

TEST_F(UpdateCheckTest, LastLineAloneCounts) {
    ExpectAnswer("0.9.9\r\nwhat is new\r\n" + RunningVersionText() + "\r\n", kNothingNew);
    ExpectAnswer(RunningVersionText() + "\n" + RunningVersionText() + "\n0.9.9", kUpdate);
}

TEST_F(UpdateCheckTest, EmptyLastLineIsAnEmptyAnswer) {
    ExpectAnswer(RunningVersionText() + "\n\n", kNoAnswer);
    ExpectAnswer(RunningVersionText() + "\r\n\r\n", kNoAnswer);
}

TEST_F(UpdateCheckTest, EmptyBodyAsksForTheConnection) {
    ExpectAnswer("", kNoAnswer);
}

TEST_F(UpdateCheckTest, ErrorPageIsTakenForAnUpdate) {
    ExpectAnswer("<html>\n<body>Not Found</body>\n</html>\n", kUpdate);
}

TEST_F(UpdateCheckTest, BodyOfAnyBytesIsKeptAsItCame) {
    const std::string body("4.1\0\xff\r\n", 7);
    ExpectAnswer(body, kUpdate);
    EXPECT_EQ(StringOf(platform.files.Contents(kFile)), body);
}

TEST_F(UpdateCheckTest, FileIsAskedForFromTheServerThatIsSet) {
    platform.registry.CreateKey("Software\\Horavex\\Settings");
    platform.registry.SetValue("Software\\Horavex\\Settings", "Web Server",
                               "https://prayer.example");
    Publish("5");
    EXPECT_THAT(
        MessagesOf(CheckForUpdate),
        ElementsAre("Update Available.\r\nPlease download the latest version of Horavex Prayer "
                    "Time Software from https://prayer.example/"));
    EXPECT_THAT(platform.network.requests, ElementsAre("https://prayer.example/update/update.txt"));
}

TEST_F(UpdateCheckTest, MessageOfThePackTellsTheServerThatIsSet) {
    platform.registry.CreateKey("Software\\Horavex\\Settings");
    platform.registry.SetValue("Software\\Horavex\\Settings", "Web Server",
                               "https://prayer.example");
    currentLanguage = "Test";
    platform.files.WriteWhole("/program/lang/Test.ini",
                              BytesOf("[msg]\n19=new\n20=at {address} now\n"));
    ExpectAnswer("5", "new\r\nat https://prayer.example/ now");
}

TEST_F(UpdateCheckTest, AnswerIsToldBeforeLabelAndBarGo) {
    class : public RecordingDialogs {
        void ShowMessage(const std::string& text, const std::string& title,
                         MessageIcon icon) override {
            EXPECT_TRUE(HoravexMainForm->lblInternetConnect.Visible()) << text;
            EXPECT_TRUE(HoravexMainForm->ProgressBar1.Visible()) << text;
            RecordingDialogs::ShowMessage(text, title, icon);
        }
    } dialogs;
    const Platform& own = Ports();
    const Platform ports{own.clock,     own.eventLoop,   own.files,     own.programFolder,
                         own.formats,   dialogs,         own.registry,  own.instanceGuard,
                         own.face,      own.windows,     own.tray,      own.shell,
                         own.network,   own.athanFace,   own.audioFile, own.audioPlayer,
                         own.zoneRules, own.whereabouts, own.notices,   own.mediaPlayers,
                         own.session,   own.almanac,     own.broadcast};
    InstallPlatform(&ports);
    Publish("5");
    CheckForUpdate();
    CheckForUpdateSilently();
    platform.network.connection = {false, kConnectionOffline};
    CheckForUpdate();
    InstallPlatform(&own);
    EXPECT_EQ(dialogs.messages.size(), 3U);
}

TEST_F(UpdateCheckTest, MenuAsksForOneAndHearsThatThereIsNone) {
    BindUpdateRoom();
    Publish("");
    EXPECT_THAT(MessagesOf([] { frmMain->mnuUpdate.UserClick(); }), ElementsAre(kNoAnswer));
}

TEST_F(UpdateCheckTest, SilentCheckShowsItsProgressToo) {
    platform.network.answer = [] {
        EXPECT_TRUE(HoravexMainForm->lblInternetConnect.Visible());
        EXPECT_TRUE(HoravexMainForm->ProgressBar1.Visible());
        return RunningVersionText();
    };
    CheckForUpdateSilently();
    EXPECT_EQ(platform.network.requests.size(), 1U);
    EXPECT_FALSE(HoravexMainForm->lblInternetConnect.Visible());
    EXPECT_FALSE(HoravexMainForm->ProgressBar1.Visible());
}

TEST_F(UpdateCheckTest, MessagesSpeakTheLanguageOfThePack) {
    currentLanguage = "Test";
    platform.files.WriteWhole("/program/lang/Test.ini",
                              BytesOf("[msg]\n19=new\n20=from there\n21=none\n22=same\n"));
    ExpectAnswer("5", "new\r\nfrom there");
    ExpectAnswer("", "none");
    ExpectAnswer(RunningVersionText(), "same");
}

TEST_F(UpdateCheckTest, ProgressIsToldProbeByProbeAndGoes) {
    Publish(RunningVersionText());
    ProgressLog log;
    CheckForUpdate();
    EXPECT_THAT(
        log.lines,
        ElementsAre(
            "Checking internet connection ", "0", "1", "Checking for Lan Connection...", "2",
            "Checking for Modem Connection...", "3", "Checking for Connection Via Proxy...", "4",
            "Checking for Any Internet Connection...", "5", "Checking if RAS is installed...", "6",
            "Checking connection type", "7", "Connect via a LAN..", "10", "no label", "no bar"));
}

TEST_F(UpdateCheckTest, NextCheckBeginsTheBarAnew) {
    CheckForUpdate();
    ProgressLog log;
    CheckForUpdate();
    EXPECT_THAT(log.lines, testing::Contains("1"));
    EXPECT_EQ(HoravexMainForm->ProgressBar1.Value(), 10);
}

TEST_F(UpdateCheckTest, LabelAndBarStandWhileTheFetchBlocks) {
    platform.network.answer = [] {
        EXPECT_TRUE(HoravexMainForm->lblInternetConnect.Visible());
        EXPECT_TRUE(HoravexMainForm->ProgressBar1.Visible());
        return RunningVersionText();
    };
    CheckForUpdate();
    EXPECT_EQ(platform.network.requests.size(), 1U);
}

TEST_F(UpdateCheckTest, OfflineIsTheSummaryAndNoFetch) {
    platform.network.connection = {false, kConnectionOffline};
    EXPECT_THAT(MessagesOf(CheckForUpdate), ElementsAre("No internet connection."));
    EXPECT_THAT(platform.network.requests, IsEmpty());
    EXPECT_FALSE(platform.files.Exists(kFile));
    EXPECT_FALSE(HoravexMainForm->lblInternetConnect.Visible());
    EXPECT_FALSE(HoravexMainForm->ProgressBar1.Visible());
}

TEST_F(UpdateCheckTest, FormerFileIsDeletedBeforeTheFetch) {
    platform.files.WriteWhole(kFile, BytesOf("old"));
    platform.network.answer = [this] {
        EXPECT_FALSE(platform.files.Exists(kFile));
        return RunningVersionText();
    };
    CheckForUpdate();
    EXPECT_EQ(StringOf(platform.files.Contents(kFile)), RunningVersionText());
}

TEST_F(UpdateCheckTest, FileThatCannotBeWrittenIsAFault) {
    Publish(RunningVersionText());
    platform.files.WriteWhole("/program/Dat/update.txt/in the way", BytesOf(""));
    EXPECT_THROW(CheckForUpdate(), FileFault);
    EXPECT_THAT(platform.dialogs.messages, IsEmpty());
}

TEST_F(UpdateCheckTest, SilentCheckTellsADifferenceInEnglishAlone) {
    currentLanguage = "Test";
    platform.files.WriteWhole("/program/lang/Test.ini",
                              BytesOf("[msg]\n19=new\n20=from there\n21=none\n22=same\n"));
    Publish("5");
    EXPECT_THAT(MessagesOf(CheckForUpdateSilently), ElementsAre(kUpdate));
    Publish(RunningVersionText());
    EXPECT_THAT(MessagesOf(CheckForUpdateSilently), IsEmpty());
    Publish("");
    EXPECT_THAT(MessagesOf(CheckForUpdateSilently), IsEmpty());
}

TEST_F(UpdateCheckTest, SilentCheckTellsThatTheMachineIsOffline) {
    platform.network.connection = {false, kConnectionOffline};
    EXPECT_THAT(MessagesOf(CheckForUpdateSilently), ElementsAre("No internet connection."));
}

TEST_F(UpdateCheckTest, SilentCheckKeepsTheFormerFileUntilItIsWrittenOver) {
    platform.files.WriteWhole(kFile, BytesOf("old"));
    platform.network.answer = [this] {
        EXPECT_TRUE(platform.files.Exists(kFile));
        return RunningVersionText();
    };
    CheckForUpdateSilently();
    EXPECT_EQ(StringOf(platform.files.Contents(kFile)), RunningVersionText());
}

TEST_F(UpdateCheckTest, TimerOfHalfAMinuteStandsStillAndChecksOnceWhereItIsStarted) {
    BindUpdateCheck();
    EXPECT_FALSE(HoravexMainForm->UpdateCheckTimer.Enabled());
    EXPECT_EQ(HoravexMainForm->UpdateCheckTimer.Interval(), 30'000);
    HoravexMainForm->Load();
    HoravexMainForm->UpdateCheckTimer.SetEnabled(true);
    Publish("5");
    EXPECT_THAT(MessagesOf([] { HoravexMainForm->UpdateCheckTimer.Tick(); }), ElementsAre(kUpdate));
    EXPECT_FALSE(HoravexMainForm->UpdateCheckTimer.Enabled());
}

TEST_F(UpdateCheckTest, LabelChecksAndTheButtonOpensTheSite) {
    BindUpdateCheck();
    HoravexMainForm->Show();
    Publish(RunningVersionText());
    EXPECT_THAT(MessagesOf([] { HoravexMainForm->VisitWebSiteLabel.UserClick(); }),
                ElementsAre(kNothingNew));
    EXPECT_THAT(MessagesOf([] { HoravexMainForm->AboutUpdateButton.UserClick(); }), IsEmpty());
    EXPECT_THAT(platform.desktop.calls, ElementsAre("OpenAddress https://horavex.invalid/"));
    EXPECT_EQ(platform.network.requests.size(), 1U);
}

constexpr const char* kSigned = "The answer of the server is signed.";
constexpr const char* kUnsigned = "The answer of the server is not signed and may be false.";

class SignedUpdateTest : public UpdateCheckTest {
protected:
    SignedUpdateTest() {
        platform.registry.CreateKey("Software\\Horavex\\Settings");
        platform.registry.SetValue("Software\\Horavex\\Settings", "Update Key", "RWkey");
    }

    void ExpectBelow(const std::string& body, const std::string& message) {
        platform.network.isSigned = true;
        ExpectAnswer(body, message + Crlf + kSigned);
        platform.network.isSigned = false;
        ExpectAnswer(body, message + Crlf + kUnsigned);
    }
};

TEST_F(SignedUpdateTest, SignedAnswerIsToldApartFromOneThatIsNot) {
    ExpectBelow("999.0.0", kUpdate);
    ExpectBelow(RunningVersionText() + "\n", kNothingNew);
}

TEST_F(SignedUpdateTest, SignatureIsAskedForByTheKeyThatIsSet) {
    Publish("5");
    CheckForUpdate();
    EXPECT_THAT(platform.network.requests,
                ElementsAre("RWkey https://horavex.invalid/update/update.txt"));
    EXPECT_EQ(StringOf(platform.files.Contents(kFile)), "5");
}

TEST_F(SignedUpdateTest, NoAnswerHasNoSignature) {
    ExpectAnswer("", kNoAnswer);
}

TEST_F(SignedUpdateTest, LineSpeaksTheLanguageOfThePack) {
    currentLanguage = "Test";
    platform.files.WriteWhole(
        "/program/lang/Test.ini",
        BytesOf("[msg]\n22=same\n[desktop]\nSignedAnswer=yes\nUnsignedAnswer=no\n"));
    ExpectAnswer(RunningVersionText(), "same\r\nno");
    platform.network.isSigned = true;
    ExpectAnswer(RunningVersionText(), "same\r\nyes");
}

TEST_F(SignedUpdateTest, SilentCheckTellsItInEnglish) {
    currentLanguage = "Test";
    platform.files.WriteWhole("/program/lang/Test.ini", BytesOf("[desktop]\nUnsignedAnswer=no\n"));
    Publish("5");
    EXPECT_THAT(MessagesOf(CheckForUpdateSilently), ElementsAre(kUpdate + Crlf + kUnsigned));
    Publish(RunningVersionText());
    EXPECT_THAT(MessagesOf(CheckForUpdateSilently), IsEmpty());
}

TEST_F(UpdateCheckTest, ScratchFileOfTheLastRunGoesAtTheStart) {
    platform.files.WriteWhole(kFile, BytesOf("5"));
    ClearUpdateFile();
    EXPECT_FALSE(platform.files.Exists(kFile));
}

TEST_F(UpdateCheckTest, ScratchFileThatCannotBeDeletedStaysWithoutAWord) {
    platform.files.WriteWhole("/program/Dat/update.txt/in the way", BytesOf(""));
    ClearUpdateFile();
    EXPECT_TRUE(platform.files.Exists(kFile));
    EXPECT_THAT(platform.dialogs.messages, IsEmpty());
}

}  // namespace
}  // namespace horavex
