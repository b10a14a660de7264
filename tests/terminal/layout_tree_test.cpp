#include "terminal/forms/layout_tree.h"

#include <gtest/gtest.h>

#include <stdexcept>

namespace horavex {
namespace {

using Kind = LayoutNode::Kind;

constexpr const char* kFile = R"(<?xml version="1.0"?>
<ui version="4.0">
 <class>w</class>
 <widget class="QWidget" name="w">
  <layout class="QGridLayout" name="page" columnstretch="0,1">
   <item row="1" column="0" colspan="2"><widget class="QPushButton" name="cmdOK">
     <property name="default"><bool>true</bool></property>
     <property name="maximumSize"><size><width>90</width><height>16</height></size></property>
   </widget></item>
   <item><spacer name="s"><property name="orientation"><enum>Qt::Horizontal</enum></property></spacer></item>
  </layout>
 </widget>
</ui>)";

TEST(LayoutTree, CellsKnowTheirPlacesAndProperties) {
    const LayoutNode root = ReadLayout(kFile);
    const LayoutNode& grid = root.children.at(0);
    EXPECT_EQ(grid.kind, Kind::kGrid);
    EXPECT_EQ(grid.columnStretch, (std::vector<int>{0, 1}));
    const LayoutNode& button = grid.children.at(0);
    EXPECT_EQ(button.name, "cmdOK");
    EXPECT_EQ(button.row, 1);
    EXPECT_EQ(button.columnSpan, 2);
    EXPECT_TRUE(button.Is("default"));
    EXPECT_EQ(button.Property("maximumSize.width"), "90");
    EXPECT_EQ(grid.children.at(1).kind, Kind::kSpace);
}

TEST(LayoutTree, BrokenFilesAreRefused) {
    EXPECT_THROW(ReadLayout(""), std::invalid_argument);
    EXPECT_THROW(ReadLayout("<ui><widget class=\"QWidget\""), std::invalid_argument);
    EXPECT_THROW(ReadLayout("<ui></ui>"), std::invalid_argument);
}

TEST(LayoutTree, EveryWindowWithControlsHasALayoutFile) {
    for (const char* form : {"HoravexMainForm", "fCountry", "frmWizard", "Moon_Phases",
                             "frmReminders", "frmDistance", "fMessage", "NewCoordinates"}) {
        EXPECT_NO_THROW(ReadLayout(LayoutFileOf(form))) << form;
    }
    EXPECT_TRUE(LayoutFileOf("frmMain").empty());
}

}  // namespace
}  // namespace horavex
