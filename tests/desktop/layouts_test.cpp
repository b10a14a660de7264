#include "desktop/form_window/layouts.h"

#include <QApplication>
#include <QGridLayout>
#include <QPushButton>
#include <QTabBar>
#include <algorithm>
#include <array>
#include <set>

#include "desktop/face/azan_face.h"
#include "desktop/face/qt_face.h"
#include "desktop/form_window/form_windows.h"
#include "desktop/form_window/widget_names.h"
#include "desktop/look/measures.h"
#include "desktop/look/window_look.h"
#include "forms/focusable.h"
#include "support/test_platform.h"
#include "windows/f_country.h"
#include "windows/f_message.h"
#include "windows/f_qibla.h"
#include "windows/frm_about.h"
#include "windows/frm_adjust.h"
#include "windows/frm_athan.h"
#include "windows/frm_azan.h"
#include "windows/frm_crescent.h"
#include "windows/frm_date_convert.h"
#include "windows/frm_distance.h"
#include "windows/frm_main.h"
#include "windows/frm_month.h"
#include "windows/frm_ramadan.h"
#include "windows/frm_reminders.h"
#include "windows/frm_sky.h"
#include "windows/frm_times.h"
#include "windows/frm_wizard.h"
#include "windows/horavex_main_form.h"
#include "windows/moon_phases.h"
#include "windows/new_coordinates.h"

namespace horavex {
namespace {

QStringList ControlNames(const Form& form) {
    QStringList names;
    for (Control* control : form.Controls()) {
        if (HasWidget(*control)) {
            names << WidgetNameOf(*control);
        }
    }
    names.sort();
    return names;
}

// Widgets inside widgets of the toolkit have its own names or none, and so have those that only
// hold a place in a layout.
QStringList WidgetNames(const QWidget& window) {
    QStringList names;
    for (const QWidget* widget : window.findChildren<QWidget*>()) {
        const bool isInTabs = qobject_cast<QTabBar*>(widget->parentWidget()) != nullptr;
        if (!widget->objectName().isEmpty() && !widget->objectName().startsWith("qt_") &&
            !isInTabs) {
            names << widget->objectName();
        }
    }
    names.sort();
    return names;
}

class LayoutsTest : public testing::TestWithParam<Form* (*)()> {
protected:
    Form& Loaded() {
        Form& form = *GetParam()();
        form.Load();
        windows.Find(&form)->Flush();
        return form;
    }

    TestPlatform platform;
    FormWindows windows{DrawnLayouts()};
};

TEST_P(LayoutsTest, EachControlHasItsWidgetAndEachWidgetItsControl) {
    Form& form = Loaded();
    EXPECT_EQ(WidgetNames(*windows.Find(&form)), ControlNames(form));
}

TEST_P(LayoutsTest, LayoutHoldsNoText) {
    const Form& form = *GetParam()();
    QWidget window;
    DrawnLayouts().at(form.Name())(window);
    for (const QWidget* widget : window.findChildren<QWidget*>()) {
        EXPECT_TRUE(widget->property("text").toString().isEmpty())
            << widget->objectName().toStdString();
        EXPECT_TRUE(widget->property("title").toString().isEmpty())
            << widget->objectName().toStdString();
        EXPECT_TRUE(widget->toolTip().isEmpty()) << widget->objectName().toStdString();
    }
}

TEST_P(LayoutsTest, SpacesAndMarginsLieOnTheGrid) {
    const QWidget& window = *windows.Find(&Loaded());
    for (const QLayout* layout : window.findChildren<QLayout*>()) {
        const QMargins margins = layout->contentsMargins();
        std::vector<int> measures = {margins.left(), margins.top(), margins.right(),
                                     margins.bottom()};
        if (const auto* grid = qobject_cast<const QGridLayout*>(layout)) {
            measures.insert(measures.end(), {grid->horizontalSpacing(), grid->verticalSpacing()});
        } else if (!layout->objectName().startsWith("qt_")) {
            measures.push_back(layout->spacing());
        }
        for (const int measure : measures) {
            EXPECT_EQ(measure % look::kGrid, 0) << layout->objectName().toStdString();
        }
    }
}

TEST_P(LayoutsTest, ButtonsHaveTheSignsThatTheLayoutNames) {
    for (const auto* button : windows.Find(&Loaded())->findChildren<QPushButton*>()) {
        EXPECT_EQ(button->icon().isNull(), !button->property("sign").isValid())
            << button->objectName().toStdString();
    }
}

TEST_P(LayoutsTest, TextsHaveASizeOfTheScale) {
    const QWidget& window = *windows.Find(&Loaded());
    const double usual = window.font().pointSizeF();
    for (const QWidget* widget : window.findChildren<QWidget*>()) {
        const double part = widget->font().pointSizeF() / usual;
        const bool isOnScale =
            std::ranges::any_of(std::array{1.0, look::kSmall, look::kHeading, look::kLarge},
                                [part](double size) { return std::abs(size - part) < 0.01; });
        EXPECT_TRUE(isOnScale) << widget->objectName().toStdString() << " " << part;
    }
}

TEST_P(LayoutsTest, WhatTakesTheFocusHasANameAndTakesItByKey) {
    Form& form = Loaded();
    for (Control* control : form.Controls()) {
        if (HasWidget(*control) && dynamic_cast<Focusable*>(control) != nullptr) {
            const auto* widget = windows.Find(&form)->findChild<QWidget*>(WidgetNameOf(*control));
            EXPECT_FALSE(widget->accessibleName().isEmpty()) << control->Name();
            EXPECT_TRUE(widget->focusPolicy() & Qt::TabFocus) << control->Name();
        }
    }
}

INSTANTIATE_TEST_SUITE_P(
    DrawnForms, LayoutsTest,
    testing::Values([]() -> Form* { return &*fMessage; },
                    []() -> Form* { return &*HoravexMainForm; },
                    []() -> Form* { return &*frmAbout; }, []() -> Form* { return &*frmAthan; },
                    []() -> Form* { return &*frmDateConvert; }, []() -> Form* { return &*fQibla; },
                    []() -> Form* { return &*frmDistance; },
                    []() -> Form* { return &*Moon_Phases; }, []() -> Form* { return &*frmRamadan; },
                    []() -> Form* { return &*NewCoordinates; },
                    []() -> Form* { return &*fCountry; }, []() -> Form* { return &*frmWizard; },
                    []() -> Form* { return &*frmTimes; }, []() -> Form* { return &*frmMonth; },
                    []() -> Form* { return &*frmAdjust; }, []() -> Form* { return &*frmReminders; },
                    []() -> Form* { return &*frmSky; }, []() -> Form* { return &*frmCrescent; }),
    [](const auto& form) { return form.param()->Name(); });

TEST(RemindersLayout, NamesTellThePrayerOfEachRow) {
    const TestPlatform platform;
    const FormWindows windows{DrawnLayouts()};
    frmReminders->Load();
    FormWindow& window = *windows.Find(&*frmReminders);
    window.Flush();
    std::set<QString> names;
    for (Control* control : frmReminders->Controls()) {
        const auto* widget = window.findChild<QWidget*>(WidgetNameOf(*control));
        if (dynamic_cast<Focusable*>(control) != nullptr) {
            EXPECT_TRUE(names.insert(widget->accessibleName()).second)
                << widget->accessibleName().toStdString();
        }
    }
    for (const char* name : {"Athan, Fajr", "Sound, Zuhr", "Volume, Asr", "Listen, Maghrib",
                             "Reminder before, Shurooq", "Iqama after, Isha", "Quiet hours, To"}) {
        EXPECT_TRUE(names.contains(name)) << name;
    }
}

TEST(CoordinatesLayout, BoxesAreToldApart) {
    const TestPlatform platform;
    const FormWindows windows{DrawnLayouts()};
    NewCoordinates->Load();
    NewCoordinates->lblDegLat.SetCaption("Degrees");
    NewCoordinates->lblSecLong.SetCaption("Seconds");
    NewCoordinates->fraLatitude.SetCaption("Latitude");
    NewCoordinates->fraLongitude.SetCaption("Longitude");
    FormWindow& window = *windows.Find(&*NewCoordinates);
    window.Flush();
    EXPECT_EQ(window.findChild<QWidget*>("Text3")->accessibleName(), "Latitude, Degrees");
    EXPECT_EQ(window.findChild<QWidget*>("Text8")->accessibleName(), "Longitude, Seconds");
}

TEST(FaceLayout, FrmMainShowsTheFaceAndStoresTheRest) {
    const TestPlatform platform;
    QtFace face;
    const FormWindows windows{Layouts{{"frmMain", [&](QWidget& window) { face.Fill(window); }}}};
    EXPECT_EQ(ControlNames(*frmMain), QStringList());
    frmMain->Show();
    const QWidget& window = *windows.Find(&*frmMain);
    EXPECT_TRUE(window.windowFlags().testFlag(Qt::FramelessWindowHint));
    EXPECT_EQ(window.size(), QSize(420, 500));
}

TEST(FaceLayout, FrmAzanShowsItsFaceInAWindowOfItsOwnSize) {
    const TestPlatform platform;
    AzanFace face;
    const FormWindows windows{Layouts{{"frmAzan", [&](QWidget& window) { face.Fill(window); }}}};
    EXPECT_EQ(ControlNames(*frmAzan), QStringList());
    frmAzan->Show();
    const QWidget& window = *windows.Find(&*frmAzan);
    EXPECT_TRUE(window.windowFlags().testFlag(Qt::FramelessWindowHint));
    EXPECT_EQ(window.size(), QSize(360, 226));
    EXPECT_EQ(window.size() * 15, QSize(5400, 3390)) << "the form's own size in twips";
}

}  // namespace
}  // namespace horavex
