// The windows of the tools menu in the whole program, in each language.

#include <QAbstractButton>
#include <QApplication>
#include <QCloseEvent>
#include <QLabel>
#include <QTabBar>
#include <QTextBlock>
#include <QTextEdit>
#include <QTimer>
#include <functional>

#include "desktop/form_window/form_windows.h"
#include "lang/language_pack.h"
#include "moon/moon_window.h"
#include "shell/wiring.h"
#include "support/program_copy.h"
#include "support/shipped_languages.h"
#include "support/test_platform.h"
#include "windows/f_qibla.h"
#include "windows/frm_crescent.h"
#include "windows/frm_date_convert.h"
#include "windows/frm_distance.h"
#include "windows/frm_main.h"
#include "windows/frm_ramadan.h"
#include "windows/frm_sky.h"
#include "windows/moon_phases.h"

namespace horavex {
namespace {

class ToolsWindowsTest : public testing::TestWithParam<std::string> {
protected:
    ToolsWindowsTest() {
        CopyBuiltProgramFolder(platform.files);
        platform.registry.CreateKey("Software\\Horavex\\Settings");
        BindWindows();
        frmMain->Load();
        currentLanguage = GetParam();
        windows = std::make_unique<FormWindows>(DrawnLayouts());
    }
    ~ToolsWindowsTest() override {
        windows.reset();
        QApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    }

    /// Opens a modal window, acts in it and closes it by its close box.
    void Visit(const std::function<void()>& show, Form& form, const std::function<void()>& act) {
        QTimer::singleShot(0, [&] {
            QApplication::processEvents();
            act();
            QCloseEvent close;
            QApplication::sendEvent(windows->Find(&form), &close);
        });
        show();
        EXPECT_FALSE(form.IsLoaded()) << form.Name();
    }

    void Visit(MenuItem& entry, Form& form, const std::function<void()>& act) {
        Visit([&entry] { entry.UserClick(); }, form, act);
    }

    void ExpectNothingCut(const Form& form) {
        QApplication::processEvents();
        QApplication::processEvents();  // lays out what has changed
        for (const QWidget* widget : windows->Find(&form)->findChildren<QWidget*>()) {
            const auto* label = qobject_cast<const QLabel*>(widget);
            const bool hasText = label != nullptr ||
                                 qobject_cast<const QAbstractButton*>(widget) != nullptr ||
                                 qobject_cast<const QTabBar*>(widget) != nullptr;
            if (!hasText || !widget->isVisible()) {
                continue;
            }
            const std::string name = widget->objectName().toStdString();
            if (label != nullptr && label->wordWrap()) {
                EXPECT_GE(label->height(), label->heightForWidth(label->width())) << name;
            } else {
                EXPECT_GE(widget->width(), widget->sizeHint().width()) << name;
            }
        }
    }

    TestPlatform platform;
    std::unique_ptr<FormWindows> windows;
};

TEST_P(ToolsWindowsTest, CutNoText) {
    Visit(frmMain->mnuDateConversion, *frmDateConvert, [&] { ExpectNothingCut(*frmDateConvert); });
    Visit(frmMain->mnuQibla, *fQibla, [&] { ExpectNothingCut(*fQibla); });
    Visit(frmMain->mnuDistance, *frmDistance, [&] { ExpectNothingCut(*frmDistance); });
    Visit(frmMain->mnuMoonPhases, *Moon_Phases, [&] {
        for (int page = 0; page < 4; ++page) {
            Moon_Phases->SSTab1.UserSelect(page);
            ExpectNothingCut(*Moon_Phases);
        }
        Visit(ShowRamadanHelp, *frmRamadan, [&] { ExpectNothingCut(*frmRamadan); });
    });
    Visit(frmMain->mnuSky, *frmSky, [&] {
        for (int page = 0; page < frmSky->tabPages.ListCount(); ++page) {
            frmSky->tabPages.UserSelect(page);
            ExpectNothingCut(*frmSky);
        }
    });
    Visit(frmMain->mnuCrescent, *frmCrescent, [&] { ExpectNothingCut(*frmCrescent); });
}

TEST_P(ToolsWindowsTest, RunInTheDirectionOfTheLanguage) {
    Visit(frmMain->mnuMoonPhases, *Moon_Phases, [&] {
        EXPECT_EQ(windows->Find(&*Moon_Phases)->isRightToLeft(),
                  GetParam() == "Arabic" || GetParam() == "Urdu");
    });
}

TEST_P(ToolsWindowsTest, MapOfTheCrescentIsNamedByWhatItShows) {
    Visit(frmMain->mnuCrescent, *frmCrescent, [&] {
        QApplication::processEvents();
        const auto& map = *windows->Find(&*frmCrescent)->findChild<QWidget*>("picMap");
        EXPECT_EQ(map.accessibleName().toStdString(), frmCrescent->lblMap.Caption());
        EXPECT_NE(map.accessibleName(), "");
    });
}

TEST_P(ToolsWindowsTest, RowsOfTheTablesStandBesideTheirDiscs) {
    Visit(frmMain->mnuMoonPhases, *Moon_Phases, [&] {
        const FormWindow& window = *windows->Find(&*Moon_Phases);
        const auto& rows = *window.findChild<QTextEdit*>("Text2");
        const auto& discs = *window.findChild<QWidget*>("picNewMoon");
        const double pitch = discs.height() / 13.0;
        const QPoint top = rows.viewport()->mapTo(&window, QPoint(0, 0));
        for (int row = 0; row < 13; ++row) {
            const QTextCursor cursor(rows.document()->findBlockByNumber(row));
            const double middle = top.y() + rows.cursorRect(cursor).center().y();
            const double disc = discs.mapTo(&window, QPoint(0, 0)).y() + pitch * (row + 0.5);
            EXPECT_NEAR(middle, disc, 5.0) << row;
        }
    });
}

INSTANTIATE_TEST_SUITE_P(All, ToolsWindowsTest, testing::ValuesIn(kShippedLanguages),
                         [](const auto& test) { return test.param; });

}  // namespace
}  // namespace horavex
