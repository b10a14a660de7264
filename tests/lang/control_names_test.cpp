#include "lang/form_language.h"
#include "lang/lang_test.h"
#include "lang/walk_form.h"

namespace horavex {
namespace {

TEST(ControlIndexSuffix, IsTheIndexOfAnArrayMemberAndElseEmpty) {
    WalkForm form;
    EXPECT_EQ(ControlIndexSuffix(form.optAsrRatio(1)), "_1");
    EXPECT_EQ(ControlIndexSuffix(form.cmdClose(0)), "_0");
    EXPECT_EQ(ControlIndexSuffix(form.SettingsSet), "");
    EXPECT_EQ(ControlIndexSuffix(form.mnuL.Load(12)), "_12");
}

TEST(PackKeys, OfAnArrayMemberEndInItsIndex) {
    WalkForm form;
    EXPECT_EQ(CaptionKey(form.optAsrRatio(1)), "optAsrRatio_1");
    EXPECT_EQ(ToolTipKey(form.optAsrRatio(1)), "optAsrRatioTTIP_1");
    EXPECT_EQ(CaptionKey(form.cmdClose(0)), "cmdClose_0");
    EXPECT_EQ(ToolTipKey(form.cmdClose(0)), "cmdCloseTTIP_0");
}

TEST(PackKeys, OfAPlainControlAreItsName) {
    WalkForm form;
    EXPECT_EQ(CaptionKey(form.SettingsSet), "SettingsSet");
    EXPECT_EQ(ToolTipKey(form.SettingsSet), "SettingsSetTTIP");
}

TEST(HasCaption, IsTrueForTheCaptionedKindsAlone) {
    WalkForm form;
    for (const Control* control : std::initializer_list<const Control*>{
             &form.fraAsr, &form.lblTitle, &form.SkinLabel1, &form.SettingsSet, &form.mnuFile,
             &form.chkAlarm, &form.optAsrRatio(1)}) {
        EXPECT_TRUE(HasCaption(*control)) << control->Name();
    }
    for (const Control* control : std::initializer_list<const Control*>{
             &form.txtZone, &form.lstNames, &form.cboDay, &form.hsDepr, &form.hsDepr1,
             &form.barDone, &form.picMap, &form.tabs, &form.Shape1, &form.tmrUpdate}) {
        EXPECT_FALSE(HasCaption(*control)) << control->Name();
    }
}

TEST(HasToolTip, NeedsThePropertyAndAText) {
    WalkForm form;
    EXPECT_TRUE(HasToolTip(form.lblTitle));
    EXPECT_TRUE(HasToolTip(form.txtZone));
    EXPECT_FALSE(HasToolTip(form.lblDeprMax));  // has the property, and nothing in it
    EXPECT_FALSE(HasToolTip(form.mnuFile));     // a menu has none
    EXPECT_FALSE(HasToolTip(form.tmrUpdate));
}

bool IsRuntimeName(const char* name) {
    Form form("frmNames");
    return IsRuntimeControl(Label(form, name));
}

TEST(IsRuntimeControl, KnowsTwoBeginnings) {
    for (const char* name : {"mnuL", "mnuLabel", "lblTime", "lblTimeLeft", "lblTimeZone"}) {
        EXPECT_TRUE(IsRuntimeName(name)) << name;
    }
    for (const char* name :
         {"mnu", "mnul", "mnuChangeLanguage", "MNUL", "lblTim", "lbltime", "MylblTime"}) {
        EXPECT_FALSE(IsRuntimeName(name)) << name;
    }
}

TEST(IsRuntimeControl, KnowsTenNamesExactly) {
    for (const char* name : {"lblLocationLat", "lblCity", "lblLocationLon", "lblTimeZone",
                             "lblQibla", "lblDepr", "lblDepr1", "lblAlarm", "lblBegin", "lblEnd"}) {
        EXPECT_TRUE(IsRuntimeName(name)) << name;
        EXPECT_EQ(IsRuntimeName((std::string(name) + "x").c_str()),
                  std::string(name) == "lblTimeZone")
            << name;
    }
    for (const char* name : {"lblDeprMax", "lblDeprMin", "lblDepr2", "lblCityBanner", "lblAlarmAt",
                             "lblBeginAt", "lblEndAT", "lblcity", "Depr"}) {
        EXPECT_FALSE(IsRuntimeName(name)) << name;
    }
}

TEST(IsRuntimeControl, AsksForTheNameOfAnyKindAndNotForTheIndex) {
    WalkForm form;
    EXPECT_TRUE(IsRuntimeControl(form.mnuL(0)));
    EXPECT_TRUE(IsRuntimeControl(form.mnuL.Load(3)));
    EXPECT_TRUE(IsRuntimeControl(form.lblTimeLeft));
    EXPECT_FALSE(IsRuntimeControl(form.optAsrRatio(1)));
}

}  // namespace
}  // namespace horavex
