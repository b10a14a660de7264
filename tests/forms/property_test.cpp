#include "forms/property.h"

#include "sample_form.h"

namespace horavex {
namespace {

using testing::ElementsAre;

class PropertyTest : public FormTest {
protected:
    std::vector<std::string> NamesOfThoseWith(Property property) const {
        std::vector<std::string> names;
        for (const Control* control : form.Controls()) {
            if (control->Has(property)) {
                names.push_back(control->Name());
            }
        }
        return names;
    }
};

TEST_F(PropertyTest, CaptionIsOfTheKindsThatALanguagePackNames) {
    EXPECT_THAT(NamesOfThoseWith(Property::kCaption),
                ElementsAre("lblCity", "SkinLabel1", "frameAsr", "optAsrRatio", "optAsrRatio",
                            "optAlone", "chkAlarm", "mnuFile", "mnuExit", "mnuL", "cmdOK"));
}

TEST_F(PropertyTest, TextIsOfBoxesAndLists) {
    EXPECT_THAT(NamesOfThoseWith(Property::kText), ElementsAre("txtZone", "lstLanguage", "cboDay"));
}

TEST_F(PropertyTest, ToolTipTextIsMissingOnMenusTimersShapesAndScrollBars) {
    for (const Control* control : std::initializer_list<const Control*>{
             &form.mnuExit, &form.tmrUpdate, &form.Shape1, &form.hsDepr}) {
        EXPECT_FALSE(control->Has(Property::kToolTipText)) << control->Name();
        EXPECT_THROW(control->ToolTipText(), NoSuchPropertyFault) << control->Name();
    }
    EXPECT_EQ(form.lblCity.ToolTipText(), "The city");
}

TEST_F(PropertyTest, IndexIsOfArrayMembersAlone) {
    EXPECT_THAT(NamesOfThoseWith(Property::kIndex),
                ElementsAre("optAsrRatio", "optAsrRatio", "mnuL"));
    EXPECT_EQ(form.optAsrRatio(2).Index(), 2);
    EXPECT_THROW(form.optAlone.Index(), NoSuchPropertyFault);
}

TEST_F(PropertyTest, TabIndexCountsTheControlsThatHaveOne) {
    EXPECT_EQ(form.lblCity.TabIndex(), 0);
    EXPECT_EQ(form.optAsrRatio(1).TabIndex(), 3);
    EXPECT_EQ(form.cmdOK.TabIndex(), 15);
    EXPECT_THROW(form.tmrUpdate.TabIndex(), NoSuchPropertyFault);
    EXPECT_THROW(form.mnuFile.TabIndex(), NoSuchPropertyFault);
    EXPECT_THROW(form.Shape1.TabIndex(), NoSuchPropertyFault);
}

TEST_F(PropertyTest, TabIndexOfTheDefinitionIsTaken) {
    const Label label{form, "late", {.tabIndex = 3}};

    EXPECT_EQ(label.TabIndex(), 3);
}

TEST_F(PropertyTest, ScaleSizeIsOfFormsAndPicturesAlone) {
    EXPECT_EQ(form.ScaleWidth(), 6000);
    EXPECT_EQ(form.ScaleHeight(), 4000);
    EXPECT_EQ(form.picMap.ScaleHeight(), 400);
    EXPECT_THROW(form.frameAsr.ScaleWidth(), NoSuchPropertyFault);
    EXPECT_EQ(form.frameAsr.Width(), 3000);
}

TEST_F(PropertyTest, ReadingAMissingPropertyFails) {
    EXPECT_THROW(form.txtZone.Caption(), NoSuchPropertyFault);
    EXPECT_THROW(form.lblCity.Text(), NoSuchPropertyFault);
    EXPECT_THROW(form.tmrUpdate.Left(), NoSuchPropertyFault);
    EXPECT_THROW(form.tmrUpdate.Visible(), NoSuchPropertyFault);
    EXPECT_THROW(form.mnuExit.Width(), NoSuchPropertyFault);
    EXPECT_THROW(form.Shape1.Enabled(), NoSuchPropertyFault);
}

TEST_F(PropertyTest, WritingAMissingPropertyFails) {
    EXPECT_THROW(form.txtZone.SetCaption("x"), NoSuchPropertyFault);
    EXPECT_THROW(form.lblCity.SetText("x"), NoSuchPropertyFault);
    EXPECT_THROW(form.lstLanguage.SetText("x"), NoSuchPropertyFault);
    EXPECT_THROW(form.mnuExit.SetToolTipText("x"), NoSuchPropertyFault);
    EXPECT_THROW(form.tmrUpdate.SetLeft(1), NoSuchPropertyFault);
    EXPECT_THROW(form.tmrUpdate.SetVisible(false), NoSuchPropertyFault);
    EXPECT_THROW(form.mnuExit.SetWidth(1), NoSuchPropertyFault);
    EXPECT_THROW(form.Shape1.SetEnabled(false), NoSuchPropertyFault);
}

TEST_F(PropertyTest, HeightOfAComboIsFixedAndTheRestIsNot) {
    EXPECT_THROW(form.cboDay.SetHeight(600), NoSuchPropertyFault);
    EXPECT_EQ(form.cboDay.Height(), 315);
    form.cboDay.SetWidth(600);
    EXPECT_EQ(form.cboDay.Width(), 600);
}

TEST_F(PropertyTest, FaultNamesControlAndProperty) {
    try {
        form.txtZone.SetCaption("x");
        FAIL() << "the caption of a text box was written";
    } catch (const Fault& fault) {
        EXPECT_STREQ(fault.what(), "txtZone has no Caption");
    }
}

TEST_F(PropertyTest, ParentIsTheDirectOne) {
    EXPECT_EQ(&form.optAsrRatio(1).Parent(), &form.frameAsr);
    EXPECT_EQ(&form.frameAsr.Parent(), &form);
    EXPECT_EQ(&form.optAsrRatio(1).OwnerForm(), &form);
}

TEST_F(PropertyTest, TagIsOfEveryControl) {
    form.tmrUpdate.SetTag("kept");

    EXPECT_EQ(form.tmrUpdate.Tag(), "kept");
}

}  // namespace
}  // namespace horavex
