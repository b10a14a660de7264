#include "desktop/form_window/menu.h"

#include <QApplication>
#include <QBuffer>
#include <QKeyEvent>
#include <QScreen>
#include <QTimer>

#include "desktop/face/face_menu_look.h"
#include "desktop/face/palette.h"
#include "desktop/face/qt_face.h"
#include "desktop/form_window/form_windows.h"
#include "desktop/look/contrast.h"
#include "desktop/look/look.h"
#include "desktop/ports/qt_windows.h"
#include "desktop/scoped_look.h"
#include "support/test_platform.h"
#include "windows/frm_main.h"

namespace horavex {
namespace {

QStringList Texts(const QMenu& menu) {
    QStringList texts;
    for (const QAction* action : menu.actions()) {
        texts << action->text();
    }
    return texts;
}

class MenuTest : public testing::Test {
protected:
    /// Runs when the next menu is open.
    static void WhenOpen(const std::function<void(QMenu&)>& act) {
        QTimer::singleShot(0, [act] {
            auto* menu = qobject_cast<QMenu*>(QApplication::activePopupWidget());
            ASSERT_NE(menu, nullptr);
            act(*menu);
            menu->close();
        });
    }

    TestPlatform platform;
    QtFace face;
    FormWindows windows{Layouts{{"frmMain", [this](QWidget& window) { face.Fill(window); }}}};
    QtWindows port{windows};
};

TEST_F(MenuTest, EntriesComeInOrderWithTheirKeysAndState) {
    QMenu menu;
    frmMain->mnuPopShow.SetChecked(true);
    frmMain->mnuPopHelp.SetVisible(false);
    FillMenu(menu, frmMain->mnuPopup);
    EXPECT_EQ(Texts(menu), (QStringList{"Sho&w Horavex",
                                        "",
                                        "&Athan",
                                        "&Moon Phases",
                                        "&Prayer Time",
                                        "&Qibla",
                                        "E&xport",
                                        "&Visit Our Site",
                                        "&Email Us",
                                        "",
                                        "Ad&justments",
                                        "Athan and &Reminders",
                                        "",
                                        "Quiet until the &Next Prayer",
                                        "Quiet &Today",
                                        "Quiet H&ours",
                                        "",
                                        "&Small Face",
                                        "&Full Screen",
                                        "&Keep above Other Windows",
                                        "",
                                        "&Exit"}));
    EXPECT_FALSE(menu.actions().at(2)->isEnabled());
    EXPECT_TRUE(menu.actions().at(4)->isEnabled());
    EXPECT_TRUE(menu.actions().at(4)->isChecked());
    EXPECT_FALSE(menu.actions().at(6)->isCheckable());
}

TEST_F(MenuTest, EntriesWithEntriesAreSubmenusAndADashIsALine) {
    frmMain->mnuL.Load(1).SetCaption("Arabic");
    QMenu menu;
    FillMenu(menu, frmMain->mnuSettings);
    const QAction* language = menu.actions().at(4);
    ASSERT_NE(language->menu(), nullptr);
    EXPECT_TRUE(language->menu()->actions().at(0)->isSeparator());
    EXPECT_EQ(language->menu()->actions().at(1)->text(), "Arabic");
}

TEST_F(MenuTest, LanguagesStandInTheDirectionOfTheMenuWithTheirOwnNamesAtTheEdge) {
    frmMain->mnuL.Load(1).SetCaption("English");
    frmMain->mnuL(1).SetAside("English");
    frmMain->mnuL.Load(2).SetCaption("Urdu");
    frmMain->mnuL(2).SetAside("اردو");
    frmMain->mnuWizard.SetCaption("معالج");
    QMenu menu;
    FillMenu(menu, frmMain->mnuSettings);
    const QMenu* languages = menu.actions().at(4)->menu();
    EXPECT_TRUE(languages->isRightToLeft());
    EXPECT_EQ(Texts(*languages), (QStringList{"", "English", "Urdu\tاردو"}));
}

TEST_F(MenuTest, EntriesThatDoNothingSayWhy) {
    frmMain->mnuPopQibla.SetHint("elsewhere");
    QMenu menu;
    FillMenu(menu, frmMain->mnuPopup);
    EXPECT_TRUE(menu.toolTipsVisible());
    EXPECT_EQ(menu.actions().at(5)->toolTip(), "elsewhere");
}

TEST_F(MenuTest, PictureOfTheProgramFolderIsTheIconWhileUnchecked) {
    QBuffer picture;
    picture.open(QIODevice::WriteOnly);
    QImage(16, 16, QImage::Format_RGB32).save(&picture, "BMP");
    platform.files.WriteWhole("/program/lang/French.bmp", BytesOf(picture.data().toStdString()));
    frmMain->mnuAbout.SetPicture("lang\\French.bmp");
    frmMain->mnuUpdate.SetPicture("lang\\French.bmp");
    frmMain->mnuUpdate.SetChecked(true);
    QMenu menu;
    FillMenu(menu, frmMain->mnuHelp);
    EXPECT_FALSE(menu.actions().at(0)->icon().isNull());
    EXPECT_TRUE(menu.actions().at(1)->icon().isNull());
    EXPECT_TRUE(menu.actions().at(2)->icon().isNull());
}

TEST_F(MenuTest, ArabicEntriesTurnTheMenuRound) {
    frmMain->mnuAbout.SetCaption("حول ال&برنامج");
    QMenu menu;
    FillMenu(menu, frmMain->mnuHelp);
    EXPECT_EQ(menu.layoutDirection(), Qt::RightToLeft);
    EXPECT_EQ(menu.actions().first()->text(), "حول البرنامج");  // its letters stay joined
}

/// How far the writing of the first entry is from the left edge, in pixels.
int LeftOfFirstEntry(QMenu& menu) {
    menu.adjustSize();
    const QImage shown = menu.grab(menu.actionGeometry(menu.actions().first())).toImage();
    constexpr int kFrame = 4;
    for (int x = kFrame; x < shown.width() - kFrame; ++x) {
        for (int y = kFrame; y < shown.height() - kFrame; ++y) {
            if (qGray(shown.pixel(x, y)) < 128) {
                return x;
            }
        }
    }
    return -1;
}

TEST_F(MenuTest, ArabicEntriesStandAtTheRight) {
    frmMain->mnuAbout.SetCaption("حول");
    frmMain->mnuHelpIndex.SetCaption("كلمات كثيرة توسع هذه القائمة كلها");
    QMenu menu;
    FillMenu(menu, frmMain->mnuHelp);
    const int left = LeftOfFirstEntry(menu);
    EXPECT_GT(left, menu.actionGeometry(menu.actions().first()).width() / 2);
}

TEST_F(MenuTest, ChosenEntryIsClickedOnceTheMenuIsClosed) {
    frmMain->Show();
    bool wasClosed = false;
    frmMain->mnuQibla.onClick = [&] { wasClosed = QApplication::activePopupWidget() == nullptr; };
    WhenOpen([](QMenu& menu) {
        menu.setActiveAction(menu.actions().at(1));
        QKeyEvent choose(QEvent::KeyPress, Qt::Key_Return, Qt::NoModifier);
        QApplication::sendEvent(&menu, &choose);
    });
    port.PopUpMenu("frmMain", "mnuTools", 150, 135);
    EXPECT_TRUE(wasClosed);
}

TEST_F(MenuTest, MenuOpensAtItsPlaceInTheWindowAndNothingIsClickedWithoutAChoice) {
    frmMain->Show();
    bool clicked = false;
    frmMain->mnuAbout.onClick = [&] { clicked = true; };
    const QPoint expected = windows.Find(&*frmMain)->mapToGlobal(QPoint(200, 135));
    QPoint place;
    WhenOpen([&](QMenu& menu) { place = menu.pos(); });
    port.PopUpMenu("frmMain", "mnuHelp", 200, 135);
    EXPECT_EQ(place, expected);
    EXPECT_FALSE(clicked);
}

TEST_F(MenuTest, MenuFromRightToLeftOpensAsFarFromTheRight) {
    frmMain->Show();
    frmMain->mnuAbout.SetCaption("حول");
    const QWidget& window = *windows.Find(&*frmMain);
    QPoint place;
    WhenOpen([&](QMenu& menu) { place = menu.geometry().topRight(); });
    port.PopUpMenu("frmMain", "mnuHelp", 200, 135);
    EXPECT_EQ(place, window.mapToGlobal(QPoint(window.width() - 200 - 1, 135)));
}

TEST_F(MenuTest, LeftGoesOnFromAMenuFromRightToLeft) {
    frmMain->Show();
    frmMain->mnuAbout.SetCaption("حول");
    QWidget* window = windows.Find(&*frmMain);
    WhenOpen([](QMenu& menu) {
        QKeyEvent press(QEvent::KeyPress, Qt::Key_Left, Qt::NoModifier);
        QApplication::sendEvent(&menu, &press);
    });
    port.PopUpMenu("frmMain", "mnuHelp", 200, 135);
    EXPECT_EQ(window->property(kMenuStep).toInt(), 1);
}

TEST_F(MenuTest, ArrowKeysLeaveAMenuSidewaysButForASubmenu) {
    frmMain->Show();
    frmMain->mnuL.Load(1).SetCaption("Arabic");
    QWidget* window = windows.Find(&*frmMain);
    const auto stepAfter = [&](int entry, Qt::Key key) {
        window->setProperty(kMenuStep, 0);
        WhenOpen([=](QMenu& menu) {
            menu.setActiveAction(menu.actions().at(entry));
            QKeyEvent press(QEvent::KeyPress, key, Qt::NoModifier);
            QApplication::sendEvent(&menu, &press);
        });
        port.PopUpMenu("frmMain", "mnuSettings", 100, 135);
        return window->property(kMenuStep).toInt();
    };
    EXPECT_EQ(stepAfter(0, Qt::Key_Right), 1);
    EXPECT_EQ(stepAfter(0, Qt::Key_Left), -1);
    EXPECT_EQ(stepAfter(4, Qt::Key_Right), 0);  // opens the languages
    EXPECT_EQ(stepAfter(4, Qt::Key_Left), -1);
    EXPECT_EQ(stepAfter(0, Qt::Key_Down), 0);
}

TEST_F(MenuTest, ArrowKeysDoNotCloseTheMenuOfTheIcon) {
    frmMain->Show();
    bool wasLeft = true;
    WhenOpen([&](QMenu& menu) {
        QKeyEvent press(QEvent::KeyPress, Qt::Key_Left, Qt::NoModifier);
        QApplication::sendEvent(&menu, &press);
        wasLeft = !menu.isVisible();
    });
    port.PopUpMenuAtPointer("frmMain", "mnuPopup");
    EXPECT_FALSE(wasLeft);
}

TEST_F(MenuTest, MenusOfTheFaceAreInItsColoursAndTheIconsInTheDesktops) {
    frmMain->Show();
    frmMain->mnuL.Load(1).SetCaption("Arabic");
    const auto colourOf = [](const QMenu& menu) { return menu.palette().color(QPalette::Window); };
    std::vector<QColor> colours;
    const auto note = [&](QMenu& menu) {
        colours.push_back(colourOf(menu));
        for (const QMenu* inner : menu.findChildren<QMenu*>()) {
            colours.push_back(colourOf(*inner));
        }
    };
    WhenOpen(note);
    port.PopUpMenu("frmMain", "mnuSettings", 100, 135);
    EXPECT_EQ(colours, (std::vector<QColor>{kSkyTop, kSkyTop}));
    WhenOpen([&](QMenu& menu) { EXPECT_NE(colourOf(menu), kSkyTop); });
    port.PopUpMenuAtPointer("frmMain", "mnuPopup");
}

TEST_F(MenuTest, MenusOfTheFaceAreReadableInEveryTheme) {
    for (const look::Theme theme : {look::Theme::kLight, look::Theme::kDark, look::Theme::kContrast,
                                    look::Theme::kLightContrast}) {
        const ScopedLook look(theme);
        const MenuLook worn = FaceMenuLook();
        const QColor ground = worn.colours.color(QPalette::Base);
        const auto contrastOf = [&](QPalette::ColorGroup group) {
            return look::Contrast(worn.colours.color(group, QPalette::Text), ground);
        };
        EXPECT_GE(contrastOf(QPalette::Active), 4.5);
        EXPECT_GE(contrastOf(QPalette::Disabled), 3.0);
        EXPECT_GE(look::Contrast(worn.colours.color(QPalette::HighlightedText),
                                 worn.colours.color(QPalette::Highlight)),
                  4.5);
        EXPECT_EQ(ground == Qt::black, look::WantsContrast());
        if (worn.edge.isValid()) {
            EXPECT_GE(look::Contrast(worn.edge, ground), 3.0);
        }
    }
}

TEST_F(MenuTest, TimersGoOnWhileAMenuIsOpen) {
    frmMain->Show();
    int ticks = 0;
    QTimer timer;
    timer.callOnTimeout([&] {
        if (++ticks == 3) {
            QApplication::activePopupWidget()->close();
        }
    });
    timer.start(5);
    port.PopUpMenu("frmMain", "mnuHelp", 200, 135);
    EXPECT_EQ(ticks, 3);
}

TEST_F(MenuTest, UnknownMenusAndUnloadedFormsOpenNothing) {
    port.PopUpMenu("frmMain", "mnuHelp", 0, 0);
    frmMain->Show();
    port.PopUpMenu("frmMain", "mnuNone", 0, 0);
    EXPECT_EQ(QApplication::activePopupWidget(), nullptr);
}

TEST_F(MenuTest, ScreenIsMeasuredInTwips) {
    const QSize pixels = QGuiApplication::primaryScreen()->size();
    EXPECT_EQ(port.Screen().width, pixels.width() * 15.0);
    EXPECT_EQ(port.Screen().height, pixels.height() * 15.0);
}

}  // namespace
}  // namespace horavex
