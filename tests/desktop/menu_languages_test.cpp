#include <gtest/gtest.h>

#include <QDir>
#include <QSet>

#include "desktop/form_window/menu.h"
#include "lang/form_language.h"
#include "lang/language_pack.h"
#include "support/build_folder.h"
#include "support/run_program.h"
#include "support/shipped_languages.h"
#include "support/test_platform.h"
#include "windows/frm_main.h"

namespace horavex {
namespace {

/// The menus of the face and of the icon as a built pack names them.
class MenuLanguagesTest : public testing::TestWithParam<std::string> {
protected:
    MenuLanguagesTest() {
        const std::string pack = ContentOf(BuiltProgramFolder() + "/lang/" + GetParam() + ".ini");
        platform.files.WriteWhole("/program/lang/" + GetParam() + ".ini",
                                  Bytes(pack.begin(), pack.end()));
        LoadFormLanguage(*frmMain, LanguagePackPath(GetParam()));
        frmMain->mnuL.Load(1).SetCaption("Arabic");
        frmMain->mnuL.Load(2).SetCaption("English");
        frmMain->mnuL(2).SetChecked(true);
    }

    static std::vector<const MenuItem*> Menus() {
        return {&frmMain->mnuAthan, &frmMain->mnuSettings, &frmMain->mnuTools, &frmMain->mnuHelp,
                &frmMain->mnuPopup};
    }

    static bool RunsFromTheRight() { return GetParam() == "Arabic" || GetParam() == "Urdu"; }

    /// Saves a picture of a menu in the build's folder "screenshots", for people to look at.
    static void Save(QMenu& menu, const std::string& name) {
        menu.adjustSize();
        const QString folder = QString::fromStdString(BuildPath("screenshots"));
        QDir().mkpath(folder);
        const QString file = QString::fromStdString(name + "-" + GetParam() + ".png");
        EXPECT_TRUE(menu.grab().save(folder + "/" + file));
    }

    TestPlatform platform;
};

QString Key(const QAction& entry) {
    const QString text = entry.text();
    const qsizetype mark = text.indexOf('&');
    return mark < 0 ? QString() : text.mid(mark + 1, 1).toLower();
}

TEST_P(MenuLanguagesTest, NoTwoEntriesOfAMenuShareAKey) {
    for (const MenuItem* source : Menus()) {
        QMenu menu;
        FillMenu(menu, *source);
        QSet<QString> keys;
        for (const QAction* entry : menu.actions()) {
            const QString key = Key(*entry);
            EXPECT_FALSE(keys.contains(key) && !key.isEmpty()) << entry->text().toStdString();
            keys.insert(key);
        }
    }
}

TEST_P(MenuLanguagesTest, MenusAreWrittenInTheDirectionOfTheLanguage) {
    for (const MenuItem* source : Menus()) {
        QMenu menu;
        FillMenu(menu, *source);
        EXPECT_EQ(menu.isRightToLeft(), RunsFromTheRight()) << source->Name();
        Save(menu, source->Name());
    }
}

INSTANTIATE_TEST_SUITE_P(All, MenuLanguagesTest, testing::ValuesIn(kShippedLanguages),
                         [](const auto& test) { return test.param; });

}  // namespace
}  // namespace horavex
