// Every window of the whole program, in every language, on a small screen.

#include <QApplication>
#include <QKeyEvent>
#include <QPushButton>
#include <QScreen>
#include <QScrollArea>
#include <QTabWidget>
#include <QTimer>
#include <functional>

#include "config/settings_window.h"
#include "config/wizard.h"
#include "desktop/face/azan_face.h"
#include "desktop/face/qt_face.h"
#include "desktop/form_window/fit_screen.h"
#include "desktop/form_window/form_windows.h"
#include "geo/city_picker.h"
#include "moon/moon_window.h"
#include "shell/wiring.h"
#include "store/settings_files.h"
#include "store/settings_record.h"
#include "support/opened_window.h"
#include "support/program_copy.h"
#include "support/test_platform.h"
#include "timetables/month_window.h"
#include "windows/f_country.h"
#include "windows/f_message.h"
#include "windows/f_qibla.h"
#include "windows/frm_about.h"
#include "windows/frm_adjust.h"
#include "windows/frm_athan.h"
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

struct Language {
    const char* pack;
    std::int16_t column;
};

constexpr Language kLanguages[] = {
    {"Arabic", 4},     {"Bengali", 1}, {"English", 1}, {"French", 2}, {"German", 3},
    {"Indonesian", 1}, {"Spanish", 5}, {"Turkish", 1}, {"Urdu", 1},
};

constexpr QSize kFrame(8, 44);  // what a window manager draws around a window, at most

/// The program in one language, with texts of one size.
class WindowsOfTheProgram : public testing::Test {
protected:
    WindowsOfTheProgram(const Language& language, double textSize) {
        QFont font = usual.font;
        font.setPointSizeF(font.pointSizeF() * textSize);
        QApplication::setFont(font);
        CopyBuiltProgramFolder(platform.files);
        LoadActiveSettings();
        ActiveSettings.Language = language.column;
        SaveActiveSettings();
        platform.registry.CreateKey("Software\\Horavex\\Settings");
        platform.registry.SetValue("Software\\Horavex\\Settings", "Language", language.pack);
        BindWindows();
        frmMain->Load();
    }

    ~WindowsOfTheProgram() override {
        windows.reset();
        QApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    }

    QWidget& WindowOf(const Form& form) { return *windows->Find(&form); }

    /// Opens each window in turn, acts in it and closes it.
    void VisitAll(const std::function<void(Form&)>& act) {
        for (const Opened& window : All()) {
            bool visited = false;
            QTimer::singleShot(0, [&] {
                QApplication::processEvents();
                act(window.form);
                window.form.Unload();
                visited = true;
            });
            window.open();
            QApplication::processEvents();
            EXPECT_TRUE(visited) << window.form.Name();
        }
    }

private:
    static std::vector<Opened> All() {
        return {{*HoravexMainForm, ShowSettingsWindow},
                {*frmWizard, ShowWizard},
                {*fMessage, Shown(*fMessage)},
                {*NewCoordinates, Shown(*NewCoordinates)},
                {*fCountry, Shown(*fCountry)},
                {*frmAthan, By(frmMain->mnuAthanSettings)},
                {*frmTimes, By(frmMain->mnuPrayerTimes)},
                {*frmMonth, ShowMonthWindow},
                {*frmDateConvert, By(frmMain->mnuDateConversion)},
                {*fQibla, By(frmMain->mnuQibla)},
                {*frmDistance, By(frmMain->mnuDistance)},
                {*Moon_Phases, By(frmMain->mnuMoonPhases)},
                {*frmRamadan, ShowRamadanHelp},
                {*frmAbout, By(frmMain->mnuAbout)},
                {*frmAdjust, By(frmMain->mnuAdjustments)},
                {*frmReminders, By(frmMain->mnuReminders)},
                {*frmSky, By(frmMain->mnuSky)},
                {*frmCrescent, By(frmMain->mnuCrescent)}};
    }

    static Layouts AllLayouts(QtFace& face, AzanFace& athanFace) {
        Layouts layouts = DrawnLayouts();
        layouts["frmMain"] = [&face](QWidget& window) { face.Fill(window); };
        layouts["frmAzan"] = [&athanFace](QWidget& window) { athanFace.Fill(window); };
        return layouts;
    }

    struct UsualFont {
        QFont font = QApplication::font();
        ~UsualFont() { QApplication::setFont(font); }
    } usual;

protected:
    TestPlatform platform;
    QtFace face;
    AzanFace athanFace;
    std::unique_ptr<FormWindows> windows =
        std::make_unique<FormWindows>(AllLayouts(face, athanFace));
};

class WindowSizesTest : public WindowsOfTheProgram,
                        public testing::WithParamInterface<std::tuple<Language, double>> {
protected:
    WindowSizesTest() : WindowsOfTheProgram(std::get<0>(GetParam()), std::get<1>(GetParam())) {}

    void ExpectFits(Form& form) {
        const QWidget& window = WindowOf(form);
        const QRect area = window.screen()->availableGeometry();
        const QRect frame = window.frameGeometry();
        EXPECT_TRUE(area.contains(frame)) << form.Name() << " at " << frame.x() << " " << frame.y()
                                          << " with " << frame.width() << " x " << frame.height();
        const QSize least = window.minimumSizeHint() + kFrame;
        EXPECT_LE(least.width(), area.width()) << form.Name();
        EXPECT_LE(least.height(), area.height()) << form.Name();
        ExpectButtonsInside(window);
    }

    /// What scrolls can be reached all the same.
    static void ExpectButtonsInside(const QWidget& window) {
        for (const QPushButton* button : window.findChildren<QPushButton*>()) {
            const QRect place(button->mapTo(&window, QPoint()), button->size());
            if (button->isVisible() && !Scrolls(*button)) {
                EXPECT_TRUE(window.rect().contains(place)) << button->objectName().toStdString();
            }
        }
    }

    static bool Scrolls(const QWidget& widget) {
        const QWidget* parent = widget.parentWidget();
        return parent != nullptr &&
               (qobject_cast<const QScrollArea*>(parent) != nullptr || Scrolls(*parent));
    }
};

TEST_P(WindowSizesTest, EveryWindowFitsOnASmallScreenWithItsButtons) {
    VisitAll([this](Form& form) { ExpectFits(form); });
}

TEST_P(WindowSizesTest, MoonWindowKeepsItsSizeOnEveryPage) {
    VisitAll([this](Form& form) {
        if (&form != &*Moon_Phases) {
            return;
        }
        const QSize size = WindowOf(form).size();
        for (const int page : {1, 2, 3, 0}) {
            Moon_Phases->SSTab1.UserSelect(page);
            Moon_Phases->cmdCalculate.UserClick();
            Moon_Phases->Cmdeclipse_sun.UserClick();
            QApplication::processEvents();
            EXPECT_EQ(WindowOf(form).size(), size) << page;
            EXPECT_LE(WindowOf(form).minimumSizeHint().height(), size.height()) << page;
        }
    });
}

TEST_P(WindowSizesTest, BothPagesOfTheMonthFit) {
    VisitAll([this](Form& form) {
        if (&form == &*frmMonth) {
            frmMonth->tabPages.UserSelect(1);
            QApplication::processEvents();
            ExpectFits(form);
            EXPECT_GE(WindowOf(form).findChild<QWidget*>("picYear")->height(), 420);
        }
    });
}

INSTANTIATE_TEST_SUITE_P(LanguagesAndTextSizes, WindowSizesTest,
                         testing::Combine(testing::ValuesIn(kLanguages), testing::Values(1.0, 1.5)),
                         [](const auto& test) {
                             return std::string(std::get<0>(test.param).pack) +
                                    (std::get<1>(test.param) > 1.0 ? "Large" : "");
                         });

struct WindowKeysTest : WindowsOfTheProgram {
    WindowKeysTest() : WindowsOfTheProgram(kLanguages[2], 1.0) {}

    void PressEscape(const Form& form) {
        QKeyEvent press(QEvent::KeyPress, Qt::Key_Escape, Qt::NoModifier);
        QWidget& window = WindowOf(form);
        QWidget* focus = window.focusWidget();
        QApplication::sendEvent(focus == nullptr ? &window : focus, &press);
    }
};

TEST_F(WindowKeysTest, EscapeClosesEveryWindow) {
    VisitAll([this](Form& form) {
        PressEscape(form);
        EXPECT_FALSE(form.Visible()) << form.Name();
    });
    PressEscape(*frmMain);
    EXPECT_FALSE(frmMain->Visible());
}

TEST_F(WindowKeysTest, SettingsShowAllTheyHaveOnPagesOfAModestSize) {
    ShowSettingsWindow();
    QApplication::processEvents();
    const QWidget& window = WindowOf(*HoravexMainForm);
    EXPECT_LE(window.width(), 860);
    EXPECT_LE(window.height(), 600);
    auto* pages = window.findChild<QTabWidget*>("qt_pages");
    for (int page = 0; page < pages->count(); ++page) {
        pages->setCurrentIndex(page);
        QApplication::processEvents();
        const auto* area = qobject_cast<QScrollArea*>(pages->widget(page));
        EXPECT_EQ(area->viewport()->size(), area->widget()->size()) << page;
    }
    const auto* languages = window.findChild<QWidget*>("lstLanguage");
    EXPECT_LT(languages->height(), 120) << "five rows";
}

}  // namespace
}  // namespace horavex
