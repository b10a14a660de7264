#include "lang/form_language.h"

#include "base/code_page.h"
#include "base/int16.h"
#include "lang/lang_test.h"
#include "lang/language_pack.h"
#include "lang/walk_form.h"
#include "windows/frm_main.h"

namespace horavex {
namespace {

using testing::AllOf;
using testing::Each;
using testing::ElementsAre;
using testing::Pair;

constexpr const char* kPack = "\\lang\\Pack.ini";

/// A label of a foreign make: a control of a translated kind that has only a text.
class TextLabel : public Control {
public:
    TextLabel(Element& parent, const char* name)
        : Control(ControlKind::kLabel, parent, name, {.caption = "none", .text = "old"}) {}

    bool Has(Property property) const override {
        return property == Property::kText ||
               (property != Property::kCaption && Control::Has(property));
    }
    const std::string& Text() const override { return Now().text; }
    void SetText(const std::string& text) override { Assign(&ControlValues::text, text); }
};

/// A button with neither caption nor text.
class MuteButton : public Control {
public:
    MuteButton(Element& parent, const char* name)
        : Control(ControlKind::kCommandButton, parent, name, {.toolTipText = "about"}) {}

    bool Has(Property property) const override {
        return property != Property::kCaption && Control::Has(property);
    }
};

/// Writes down what changes, with what the face has been told by then.
class ChangeLog : public FormObserver {
public:
    explicit ChangeLog(Form& form, const RecordingFace* face = nullptr) : form_(form), face_(face) {
        form_.SetObserver(this);
    }
    ~ChangeLog() override { form_.SetObserver(nullptr); }

    void ControlChanged(Control& control) override {
        Note(control.Name() + ControlIndexSuffix(control));
    }
    void FormChanged() override { Note(form_.Name()); }

    std::vector<std::string> changes;
    std::vector<std::size_t> faceVariables;  // at the time of each change

private:
    void Note(const std::string& change) {
        changes.push_back(change);
        faceVariables.push_back(face_ != nullptr ? face_->variables.size() : 0);
    }

    Form& form_;
    const RecordingFace* face_;
};

class LoadFormLanguageTest : public LangTest {
protected:
    /// The lines as the section of the form, then the walk.
    void Walk(const std::string& lines) {
        WritePack("Pack.ini", "[frmWalk]\n" + lines);
        LoadFormLanguage(form, kPack);
    }

    WalkForm form;
};

// The form's own caption

TEST_F(LoadFormLanguageTest, CaptionOfTheFormHasTheFormsNameAsKey) {
    Walk("frmWalk=Titel");
    EXPECT_EQ(form.Caption(), "Titel");
}

TEST_F(LoadFormLanguageTest, PackWithoutTheFormsEntryLeavesItsInternalName) {
    Walk("lblTitle=x");
    EXPECT_EQ(form.Caption(), "frmWalk");
}

TEST_F(LoadFormLanguageTest, EmptyEntryMakesAnEmptyTitle) {
    Walk("frmWalk=");
    EXPECT_EQ(form.Caption(), "");
}

// Captions

TEST_F(LoadFormLanguageTest, SevenKindsTakeTheirCaptions) {
    Walk(
        "fraAsr=A\noptAsrRatio_1=B\noptAsrRatio_2=C\nlblTitle=D\nSkinLabel1=E\nchkAlarm=F\n"
        "cmdClose_0=G\nSettingsSet=H\nmnuFile=I\nmnuExit=J\n");
    EXPECT_EQ(form.fraAsr.Caption(), "A");
    EXPECT_EQ(form.optAsrRatio(1).Caption(), "B");
    EXPECT_EQ(form.optAsrRatio(2).Caption(), "C");
    EXPECT_EQ(form.lblTitle.Caption(), "D");
    EXPECT_EQ(form.SkinLabel1.Caption(), "E");
    EXPECT_EQ(form.chkAlarm.Caption(), "F");
    EXPECT_EQ(form.cmdClose(0).Caption(), "G");
    EXPECT_EQ(form.SettingsSet.Caption(), "H");
    EXPECT_EQ(form.mnuFile.Caption(), "I");
    EXPECT_EQ(form.mnuExit.Caption(), "J");
}

TEST_F(LoadFormLanguageTest, ArrayMemberIgnoresTheKeyWithoutItsIndex) {
    Walk("optAsrRatio=plain\noptAsrRatio_1=B");
    EXPECT_EQ(form.optAsrRatio(1).Caption(), "B");
    EXPECT_EQ(form.optAsrRatio(2).Caption(), "");
}

TEST_F(LoadFormLanguageTest, MissingKeyAndEmptyValueBothBlankACaption) {
    Walk("lblTitle=\n");
    EXPECT_EQ(form.lblTitle.Caption(), "");
    EXPECT_EQ(form.SkinLabel1.Caption(), "");
}

TEST_F(LoadFormLanguageTest, KeysOfAnotherSectionDoNotCount) {
    WritePack("Pack.ini", "[frmOther]\nlblTitle=wrong\n[FRMWALK]\nLBLTITLE=right");
    LoadFormLanguage(form, kPack);
    EXPECT_EQ(form.lblTitle.Caption(), "right");
}

TEST_F(LoadFormLanguageTest, CaptionIsCutAtItsBuffer) {
    Walk("lblTitle=" + std::string(2000, 'x') + "\nfrmWalk=" + std::string(2000, 'y'));
    EXPECT_EQ(form.lblTitle.Caption(), std::string(1023, 'x'));
    EXPECT_EQ(form.Caption(), std::string(1023, 'y'));
}

TEST_F(LoadFormLanguageTest, RuntimeControlsKeepWhatTheyHold) {
    Walk("lblTimeLeft=x\nlblTimeLeftTTIP=x\nmnuLabel=x\nmnuL_0=x\nlblDepr=x");
    EXPECT_EQ(form.lblTimeLeft.Caption(), "left");
    EXPECT_EQ(form.lblTimeLeft.ToolTipText(), "about left");
    EXPECT_EQ(form.mnuLabel.Caption(), "L");
    EXPECT_EQ(form.mnuL(0).Caption(), "-");
    EXPECT_EQ(form.lblDepr.Caption(), "18");
}

TEST_F(LoadFormLanguageTest, NamesThatOnlyResembleRuntimeControlsAreTranslated) {
    Walk("lblDeprMax=Max\nlblCityBanner=Stadt\nMyLblTime=Zeit");
    EXPECT_EQ(form.lblDeprMax.Caption(), "Max");
    EXPECT_EQ(form.lblCityBanner.Caption(), "Stadt");
    EXPECT_EQ(form.MyLblTime.Caption(), "Zeit");
}

TEST_F(LoadFormLanguageTest, OtherKindsArePassedOverWithTheirTooltips) {
    Walk(
        "txtZone=x\ntxtZoneTTIP=x\nlstNames=x\nlstNamesTTIP=x\ncboDay=x\ncboDayTTIP=x\n"
        "hsDepr1TTIP=x\nbarDoneTTIP=x\npicMapTTIP=x\ntabsTTIP=x\n");
    EXPECT_EQ(form.txtZone.Text(), "text");
    EXPECT_EQ(form.cboDay.Text(), "combo");
    EXPECT_EQ(form.txtZone.ToolTipText(), "about text");
    EXPECT_EQ(form.lstNames.ToolTipText(), "about list");
    EXPECT_EQ(form.cboDay.ToolTipText(), "about combo");
    EXPECT_EQ(form.hsDepr1.ToolTipText(), "about slider");
    EXPECT_EQ(form.barDone.ToolTipText(), "about bar");
    EXPECT_EQ(form.picMap.ToolTipText(), "about picture");
    EXPECT_EQ(form.tabs.ToolTipText(), "about tabs");
}

TEST_F(LoadFormLanguageTest, MembersMadeAtRunTimeAreWalkedUnlessTheyAreRuntimeControls) {
    form.optAsrRatio.Load(7);
    form.mnuL.Load(1).SetCaption("Arabic");
    Walk("optAsrRatio_7=sieben\noptAsrRatioTTIP_7=Tipp\nmnuL_1=x");
    EXPECT_EQ(form.optAsrRatio(7).Caption(), "sieben");
    EXPECT_EQ(form.optAsrRatio(7).ToolTipText(), "Tipp");
    EXPECT_EQ(form.mnuL(1).Caption(), "Arabic");
}

// Tooltips

TEST_F(LoadFormLanguageTest, TooltipComesFromItsOwnKey) {
    Walk("lblTitleTTIP=Tipp\nSettingsSetTTIP=Setzen\ncmdCloseTTIP_0=Ende\noptAsrRatioTTIP_1=eins");
    EXPECT_EQ(form.lblTitle.ToolTipText(), "Tipp");
    EXPECT_EQ(form.SettingsSet.ToolTipText(), "Setzen");
    EXPECT_EQ(form.cmdClose(0).ToolTipText(), "Ende");
    EXPECT_EQ(form.optAsrRatio(1).ToolTipText(), "eins");
}

TEST_F(LoadFormLanguageTest, TooltipWithoutAKeyIsLostForGood) {
    Walk("lblTitle=x");
    EXPECT_EQ(form.lblTitle.ToolTipText(), "");
    Walk("lblTitleTTIP=too late");
    EXPECT_EQ(form.lblTitle.ToolTipText(), "");
}

TEST_F(LoadFormLanguageTest, ControlWithoutATooltipGetsNone) {
    Walk("optAsrRatioTTIP_2=x\nlblDeprMaxTTIP=x");
    EXPECT_EQ(form.optAsrRatio(2).ToolTipText(), "");
    EXPECT_EQ(form.lblDeprMax.ToolTipText(), "");
}

// Order, refresh and failing steps

TEST_F(LoadFormLanguageTest, FormComesFirstThenControlsInTheirOrderEachTooltipBeforeItsCaption) {
    form.optAsrRatio.Load(7);
    ChangeLog log(form);
    Walk("frmWalk=x");
    EXPECT_THAT(
        log.changes,
        ElementsAre("frmWalk", "fraAsr", "fraAsr", "optAsrRatio_1", "optAsrRatio_1",
                    "optAsrRatio_2", "lblTitle", "lblTitle", "SkinLabel1", "SkinLabel1", "chkAlarm",
                    "chkAlarm", "cmdClose_0", "cmdClose_0", "cmdClose_0", "SettingsSet",
                    "SettingsSet", "SettingsSet", "mnuFile", "mnuExit", "lblDeprMax",
                    "lblCityBanner", "MyLblTime", "optAsrRatio_7", "optAsrRatio_7"));
}

TEST_F(LoadFormLanguageTest, TooltipIsSetBeforeTheCaption) {
    struct : FormObserver {
        void ControlChanged(Control& control) override {
            if (control.Name() == "lblTitle") {
                seen.push_back(control.ToolTipText() + "/" + control.Caption());
            }
        }
        void FormChanged() override {}
        std::vector<std::string> seen;
    } observer;
    form.SetObserver(&observer);
    Walk("lblTitle=Titel\nlblTitleTTIP=Tipp");
    EXPECT_THAT(observer.seen, ElementsAre("Tipp/label", "Tipp/Titel"));
}

TEST_F(LoadFormLanguageTest, ButtonIsDrawnAgainEvenWithTheSameTexts) {
    const std::string lines =
        "frmWalk=F\nfraAsr=A\nfraAsrTTIP=A\noptAsrRatio_1=B\noptAsrRatioTTIP_1=B\n"
        "optAsrRatio_2=C\nlblTitle=D\nlblTitleTTIP=D\nSkinLabel1=E\nSkinLabel1TTIP=E\n"
        "chkAlarm=F\nchkAlarmTTIP=F\ncmdClose_0=G\ncmdCloseTTIP_0=G\nSettingsSet=H\n"
        "SettingsSetTTIP=H\nmnuFile=I\nmnuExit=J\nlblDeprMax=K\nlblCityBanner=L\nMyLblTime=M\n";
    Walk(lines);
    ChangeLog log(form);
    Walk(lines);
    EXPECT_THAT(log.changes, ElementsAre("cmdClose_0", "SettingsSet"));
}

TEST_F(LoadFormLanguageTest, ControlWithoutACaptionTakesTheTextInstead) {
    TextLabel label(form, "lblText");
    Walk("lblText=neu");
    EXPECT_EQ(label.Text(), "neu");
    Walk("");
    EXPECT_EQ(label.Text(), "");
}

TEST_F(LoadFormLanguageTest, FailingPropertyIsPassedOverAndTheNextStepRuns) {
    MuteButton button(form, "cmdMute");
    Label after(form, "lblAfter");
    ChangeLog log(form);
    Walk("cmdMute=x\ncmdMuteTTIP=Tipp\nlblAfter=danach");
    EXPECT_EQ(button.ToolTipText(), "Tipp");
    EXPECT_EQ(after.Caption(), "danach");
    EXPECT_EQ(std::count(log.changes.begin(), log.changes.end(), "cmdMute"), 2);  // and a redraw
}

// Packs

TEST_F(LoadFormLanguageTest, MissingPackBlanksWhateverTheWalkReaches) {
    LoadFormLanguage(form, "\\lang\\Nowhere.ini");
    EXPECT_EQ(form.Caption(), "frmWalk");
    for (Control* control : form.Controls()) {
        if (TakesPackTexts(*control)) {
            EXPECT_EQ(control->Caption(), "") << control->Name();
            EXPECT_FALSE(HasToolTip(*control)) << control->Name();
        }
    }
    EXPECT_EQ(form.lblTimeLeft.Caption(), "left");
    EXPECT_EQ(form.txtZone.Text(), "text");
    EXPECT_TRUE(platform.dialogs.messages.empty());
}

TEST_F(LoadFormLanguageTest, UnreadablePackIsAsGoodAsAMissingOne) {
    WritePack("Pack.ini", "[frmWalk]\nfrmWalk=Titel\nlblTitle=x");
    platform.failingFiles.FailCall(1);
    LoadFormLanguage(form, kPack);
    EXPECT_EQ(form.Caption(), "frmWalk");  // the one failed read, and the next passed again
    EXPECT_EQ(form.lblTitle.Caption(), "x");
}

TEST_F(LoadFormLanguageTest, EightBitPackIsReadByItsOwnName) {
    currentLanguage = "French";
    const Bytes word = EncodeCodePage("القبلة", CodePage::kWindows1256).value();
    WritePack("ARABIC.ini", "[frmWalk]\nlblTitle=" + StringOf(word));
    LoadFormLanguage(form, "\\lang\\ARABIC.ini");
    EXPECT_EQ(form.lblTitle.Caption(), "القبلة");
}

// The face

class FaceLanguageTest : public LangTest {
protected:
    FaceLanguageTest() {
        WritePack("Pack.ini",
                  "[frmMain]\nmnuAthan=Adhan\nmnuSettings=S\nmnuTools=T\nmnuHelp=H\n"
                  "[other]\n13=wrong\n14=wrong\n");
        WritePack("French.ini", "[other]\n13=Horaires\n14=Direction\n");
        currentLanguage = "French";
    }
};

TEST_F(FaceLanguageTest, WindowOfTheFaceEndsWithSixVariablesInOrder) {
    ChangeLog log(*frmMain, &platform.face);
    LoadFormLanguage(*frmMain, kPack);
    EXPECT_THAT(platform.face.variables,
                ElementsAre(Pair("_root.azan", "Adhan"), Pair("_root.settings", "S"),
                            Pair("_root.tools", "T"), Pair("_root.help", "H"),
                            Pair("qibla", "Direction"), Pair("prayer_time", "Horaires")));
    EXPECT_THAT(log.faceVariables, AllOf(testing::Not(testing::IsEmpty()), Each(0U)));
}

TEST_F(FaceLanguageTest, TwoLabelsHaveEnglishDefaultsAndTheMenusNone) {
    currentLanguage = "Nowhere";
    LoadFormLanguage(*frmMain, LanguagePackPath(currentLanguage));
    EXPECT_THAT(platform.face.variables,
                ElementsAre(Pair("_root.azan", ""), Pair("_root.settings", ""),
                            Pair("_root.tools", ""), Pair("_root.help", ""), Pair("qibla", "Qibla"),
                            Pair("prayer_time", "Prayer Times")));
}

TEST_F(FaceLanguageTest, NoOtherFormTouchesTheFaceNotEvenInAnotherCase) {
    for (const char* name : {"frmmain", "FrmMain", "frmMain2", "fMessage"}) {
        WalkForm form(name);
        LoadFormLanguage(form, kPack);
    }
    EXPECT_TRUE(platform.face.variables.empty());
}

// At the load

TEST_F(LoadFormLanguageTest, TranslateOnLoadWaitsForAPackToBeSeen) {
    WritePack("Pack.ini", "[frmWalk]\nfrmWalk=Titel");
    currentLanguage = "Pack";
    TranslateOnLoad(form);
    EXPECT_EQ(form.Caption(), "Definition");
    EXPECT_EQ(form.lblTitle.Caption(), "label");
    languageFilesPresent = kTrue;
    TranslateOnLoad(form);
    EXPECT_EQ(form.Caption(), "Titel");
    EXPECT_EQ(form.lblTitle.Caption(), "");
}

class SetMenuBarTest : public LangTest {};

TEST_F(SetMenuBarTest, HandsFourTitlesOverInOrder) {
    WritePack("Pack.ini", "[frmMain]\nmnuHelp=H\nmnuTools=T\nmnuSettings=S\nmnuAthan=A");
    SetMenuBar("\\lang\\Pack.ini");
    EXPECT_THAT(platform.face.variables,
                ElementsAre(Pair("_root.azan", "A"), Pair("_root.settings", "S"),
                            Pair("_root.tools", "T"), Pair("_root.help", "H")));
}

TEST_F(SetMenuBarTest, PackIsTheGivenOneAndNotTheCurrent) {
    WritePack("Pack.ini", "[frmMain]\nmnuAthan=given");
    WritePack("French.ini", "[frmMain]\nmnuAthan=current");
    currentLanguage = "French";
    SetMenuBar("\\lang\\Pack.ini");
    EXPECT_EQ(platform.face.Value("_root.azan"), "given");
}

TEST_F(SetMenuBarTest, MissingTitleIsHandedOverEmpty) {
    SetMenuBar("\\lang\\Nowhere.ini");
    EXPECT_THAT(platform.face.variables,
                ElementsAre(Pair("_root.azan", ""), Pair("_root.settings", ""),
                            Pair("_root.tools", ""), Pair("_root.help", "")));
}

TEST_F(SetMenuBarTest, TitleIsCutAtItsShorterBuffer) {
    WritePack("Pack.ini", "[frmMain]\nmnuTools=" + std::string(300, 'x'));
    SetMenuBar("\\lang\\Pack.ini");
    EXPECT_EQ(platform.face.Value("_root.tools"), std::string(254, 'x'));
}

TEST_F(SetMenuBarTest, TitleIsHandedOverAsReadWithItsAccessKey) {
    WritePack("Pack.ini", "[frmMain]\nmnuHelp=&Hilfe");
    SetMenuBar("\\lang\\Pack.ini");
    EXPECT_EQ(platform.face.Value("_root.help"), "&Hilfe");
}

}  // namespace
}  // namespace horavex
