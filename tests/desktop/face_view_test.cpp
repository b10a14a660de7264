#include "desktop/face/face_view.h"

#include <QAbstractButton>
#include <QAccessible>
#include <QApplication>
#include <QKeyEvent>
#include <QMouseEvent>
#include <QPaintEvent>

#include "desktop/face/compass.h"
#include "desktop/face/countdown_line.h"
#include "desktop/face/face_day.h"
#include "desktop/face/fitted_text.h"
#include "desktop/face/qt_face.h"
#include "desktop/face/text_line.h"
#include "desktop/face/times_view.h"
#include "desktop/face_values.h"
#include "desktop/form_window/menu.h"
#include "desktop/scoped_look.h"
#include "engine/ruled_year.h"
#include "engine/solar_event.h"
#include "lang/language_pack.h"
#include "sky/day_sky.h"
#include "support/test_platform.h"

namespace horavex {
namespace {

TEST(ReadBearing, EitherDecimalMarkIsRead) {
    EXPECT_EQ(ReadBearing("136.25"), 136.25);
    EXPECT_EQ(ReadBearing("136,25"), 136.25);
    EXPECT_EQ(ReadBearing("-60"), 300.0);
    EXPECT_EQ(ReadBearing("0"), 0.0);
    EXPECT_EQ(ReadBearing("1.5E-5"), 1.5e-5);
    EXPECT_EQ(ReadBearing(""), std::nullopt);
    EXPECT_EQ(ReadBearing("east"), std::nullopt);
}

class FaceTest : public testing::Test {
protected:
    FaceTest() {
        face.onFSCommand = [this](const std::string& command, const std::string& arguments) {
            commands.push_back(command);
            EXPECT_EQ(arguments, "");
        };
        face.Fill(window);
        window.show();
    }

    FaceView& View() { return *window.findChild<FaceView*>(); }

    QAbstractButton& Button(const char* command) {
        return *window.findChild<QAbstractButton*>(QString::fromUtf8(command));
    }

    /// The texts that the face shows, without those of buttons.
    QStringList Lines() {
        QStringList lines;
        for (const TextLine* line : window.findChildren<TextLine*>()) {
            lines << line->text();
        }
        return lines;
    }

    /// What assistive tools are told of a row of the times.
    QString ReadRow(int row) {
        auto* times = QAccessible::queryAccessibleInterface(window.findChild<QWidget*>("times"));
        return times->child(row)->text(QAccessible::Name);
    }

    // What lies at the place gets the event, or else what lies behind it.
    void Mouse(QEvent::Type type, const QPoint& at, Qt::MouseButton button = Qt::LeftButton) {
        QWidget* target = View().childAt(at) == nullptr ? &View() : View().childAt(at);
        const QPointF local = target->mapFrom(&View(), at);
        QMouseEvent event(type, local, target->mapToGlobal(local),
                          type == QEvent::MouseMove ? Qt::NoButton : button, button,
                          Qt::NoModifier);
        QApplication::sendEvent(target, &event);
    }

    void Click(const QPoint& at, Qt::MouseButton button = Qt::LeftButton) {
        Mouse(QEvent::MouseButtonPress, at, button);
        Mouse(QEvent::MouseButtonRelease, at, button);
    }

    TestPlatform platform;
    QtFace face;
    QWidget window;
    std::vector<std::string> commands;
};

TEST_F(FaceTest, VariablesBeforeTheLoadAreDropped) {
    face.SetVariable("_root.azan", "Adhan");
    face.LoadMovie(0, "skin.swf");
    EXPECT_EQ(Button("IDC_FS_azan").text(), "Athan");
    face.SetVariable("_root.azan", "Adhan");
    EXPECT_EQ(Button("IDC_FS_azan").text(), "Adhan");
}

TEST_F(FaceTest, EachVariableShows) {
    face.LoadMovie(0, "");
    TellEnglish(face);
    EXPECT_EQ(Lines(), (QStringList{"21 November 2026", "11 Jamad Thani 1448", "", "",
                                    "Next Athan: Asr at 2:36:00 PM", "Remaining: 2:36:0", ""}));
    EXPECT_EQ(Button("IDC_FS_Day").text(), "Saturday");
    EXPECT_EQ(window.findChild<QWidget*>("compass")->accessibleName(), "136°");
    EXPECT_EQ(ReadRow(0), "Fajr 04:56 AM");
}

TEST(FaceText, TimeAndTheLatinWordsBeforeItStayTogetherInArabic) {
    EXPECT_EQ(WithTimesIsolated(QStringLiteral("الأذان التالي: Fajr at 5:18:12 AM")),
              QStringLiteral("الأذان التالي: \u2066Fajr at 5:18:12 AM\u2069"));
    EXPECT_EQ(WithTimesIsolated(QStringLiteral("العصر الساعة 2:36:00 PM")),
              QStringLiteral("العصر الساعة \u20662:36:00 PM\u2069"));
}

TEST_F(FaceTest, RowOfTheNextPrayerIsMarkedWhateverTheSentenceSays) {
    face.LoadMovie(0, "");
    TellEnglish(face);
    auto& times = *window.findChild<TimesView*>("times");
    const QImage asr = times.grab().toImage();
    face.SetVariable("_root.sNextPrayer", "Next Athan: Isha at 6:20:00 PM");
    EXPECT_EQ(times.grab().toImage(), asr);
    times.ShowTimes({{"Fajr", "04:56 AM"}, {"Shurooq", "06:24 AM"}}, 0);
    const QImage first = times.grab().toImage();
    times.ShowTimes({{"Fajr", "04:56 AM"}, {"Shurooq", "06:24 AM"}}, 1);
    EXPECT_NE(times.grab().toImage(), first);
}

TEST_F(FaceTest, MarkedTimesAreExplainedToWhoeverPointsAtThem) {
    face.LoadMovie(0, "");
    TellEnglish(face);
    auto& times = *window.findChild<TimesView*>("times");
    EXPECT_EQ(times.toolTip(), "");
    RuledYear.rules.moments.highLatitude = HighLatitudeRule::kSeventh;
    DayView day;
    day.moments[kIsha] = {24.25, MomentBy::kRule, 1};
    face.ShowDay(day);
    EXPECT_EQ(ReadRow(kIsha), "Isha 12:15 AM, next day \u2020");
    EXPECT_TRUE(times.toolTip().contains("seventh of the night"));
}

TEST_F(FaceTest, MarkOfATomorrowsTimeIsExplained) {
    RuledYear.rules.moments.highLatitude = HighLatitudeRule::kSeventh;
    DayView day;
    day.next = {kFajr, true, {3.0, MomentBy::kRule}, 3600.0};
    EXPECT_TRUE(FaceDayOf(day).timesNote.contains("seventh of the night"));
}

TEST_F(FaceTest, PrayerOfTomorrowStandsInItsRowInPlaceOfTodays) {
    face.LoadMovie(0, "");
    TellEnglish(face);
    DayView day;
    day.moments[kFajr].hours = 4.9;
    day.next = {kFajr, true, {5.25}, 3600.0};
    face.ShowDay(day);
    const auto firstRow = [this] {
        QWidget* times = window.findChild<QWidget*>("times");
        return QAccessible::queryAccessibleInterface(times)->child(0)->text(QAccessible::Name);
    };
    EXPECT_EQ(firstRow(), "Fajr tomorrow 05:15 AM");
    day.next = {kFajr, false, day.moments[kFajr], 3600.0};
    face.ShowDay(day);
    EXPECT_EQ(firstRow(), "Fajr 04:54 AM");
}

TEST_F(FaceTest, IshaOfYesterdayThatComesAfterMidnightStandsInItsRowAsItIsTold) {
    DayView day;
    day.moments[kIsha] = {24.7};
    day.moments[kIsha].dayShift = 1;
    day.next = {kIsha, false, {0.75}, 1800.0};
    const FaceDay told = FaceDayOf(day);
    EXPECT_EQ(told.rows.at(kIsha).time, "12:45 AM");
    EXPECT_EQ(told.cells.at(kIsha).time, "12:45 AM");
}

TEST_F(FaceTest, FastStandsInFrontOfTheCountdown) {
    face.LoadMovie(0, "");
    TellEnglish(face);
    QWidget& line = *window.findChild<QWidget*>("countdown");
    const QImage usual = line.grab().toImage();
    DayView day;
    day.next = {kMaghrib, false, {17.0}, 9360.0};
    face.ShowDay(day);
    EXPECT_EQ(line.grab().toImage(), usual);
    day.fast = "Iftar in";
    face.ShowDay(day);
    EXPECT_NE(line.grab().toImage(), usual);
}

TEST_F(FaceTest, CountdownIsThatOfTheDayWhateverTheTextSays) {
    face.LoadMovie(0, "");
    TellEnglish(face);
    auto& line = *window.findChild<CountdownLine*>("countdown");
    const QImage told = line.grab().toImage();
    face.SetVariable("_root.sNextRemaining", "x");
    EXPECT_EQ(line.grab().toImage(), told);
    line.ShowCountdown("Remaining:", 9359);
    EXPECT_NE(line.grab().toImage(), told);
}

TEST(CountdownDigits, HaveMinutesAndSecondsOfTwo) {
    EXPECT_EQ(CountdownDigits(0), "0:00:00");
    EXPECT_EQ(CountdownDigits(7509), "2:05:09");
    EXPECT_EQ(CountdownDigits(86399), "23:59:59");
}

TEST_F(FaceTest, GroundFollowsTheSunAndOnlyAnotherSkyIsPainted) {
    face.LoadMovie(0, "");
    const auto groundUnder = [this](double altitude) {
        DaySky sky;
        sky.sunAltitude = altitude;
        sky.sunArc = {-30.0, altitude, -30.0};
        DayView day;
        day.sky = std::make_shared<const DaySky>(sky);
        face.ShowDay(day);
        return View().grab().toImage().pixelColor(10, 350);
    };
    const QColor day = groundUnder(60.0);
    face.ShowDay({});
    EXPECT_EQ(View().grab().toImage().pixelColor(10, 350), day);
    EXPECT_NE(groundUnder(-30.0), day);
}

TEST_F(FaceTest, GroundIsPlainWhileTheDesktopWantsContrast) {
    face.LoadMovie(0, "");
    const auto ground = [this] { return View().grab().toImage().pixelColor(10, 350); };
    const QColor night = ground();
    {
        const ScopedLook look(look::Theme::kContrast);
        EXPECT_EQ(ground(), QColor(Qt::black));
    }
    EXPECT_EQ(ground(), night);
}

TEST_F(FaceTest, DayWithoutTimesIsPainted) {
    face.LoadMovie(0, "");
    DayView day;
    for (Moment& moment : day.moments) {
        moment.hours = NoEvent;
    }
    DaySky sky;
    sky.sunArc = {-20.0, -3.0, -20.0};
    day.sky = std::make_shared<DaySky>(sky);
    face.ShowDay(day);
    EXPECT_FALSE(View().grab().isNull());
}

TEST_F(FaceTest, PlaceAndClocksHaveTheirLines) {
    face.LoadMovie(0, "");
    DayView day;
    day.place = "Oslo - Norway";
    day.clocks = "This computer's clock: UTC-5; Oslo: UTC+2";
    face.ShowDay(day);
    EXPECT_EQ(Lines().at(2), "Oslo - Norway");
    EXPECT_EQ(Lines().at(3), "This computer's clock: UTC-5; Oslo: UTC+2");
    day.iqama = "Iqama of Asr in 4:12";
    face.ShowDay(day);
    EXPECT_EQ(Lines().at(6), "Iqama of Asr in 4:12");
}

TEST_F(FaceTest, TimesAreAListWhoseSelectedItemIsTheNextPrayer) {
    face.LoadMovie(0, "");
    TellEnglish(face);
    auto& view = *window.findChild<TimesView*>("times");
    view.ShowTimes({{"Fajr", "04:56 AM"}, {"Shurooq", "06:24 AM"}}, 1);
    QAccessibleInterface& times = *QAccessible::queryAccessibleInterface(&view);
    EXPECT_EQ(times.role(), QAccessible::List);
    EXPECT_EQ(times.text(QAccessible::Name), "Prayer Times");
    ASSERT_EQ(times.childCount(), 2);
    EXPECT_EQ(times.child(2), nullptr);
    QAccessibleInterface& second = *times.child(1);
    EXPECT_EQ(second.role(), QAccessible::ListItem);
    EXPECT_EQ(times.indexOfChild(&second), 1);
    EXPECT_EQ(second.parent(), &times);
    EXPECT_FALSE(times.child(0)->state().selected);
    EXPECT_TRUE(second.state().selected);
    EXPECT_TRUE(times.rect().contains(second.rect()));
    view.ShowTimes({{"Fajr", "04:56 AM"}}, 0);
    EXPECT_FALSE(second.isValid());
    EXPECT_EQ(second.text(QAccessible::Name), "");
}

TEST_F(FaceTest, CompassIsAPictureWithTheBearing) {
    face.LoadMovie(0, "");
    TellEnglish(face);
    auto* compass = QAccessible::queryAccessibleInterface(window.findChild<QWidget*>("compass"));
    EXPECT_EQ(compass->role(), QAccessible::Graphic);
    EXPECT_EQ(compass->text(QAccessible::Description), "Qibla");
}

TEST_F(FaceTest, DayBeforeTheLoadIsDropped) {
    TellEnglish(face);
    EXPECT_TRUE(window.findChild<TimesView*>("times")->Rows().empty());
}

TEST_F(FaceTest, CaptionsAreEnglishUntilThePackNamesThem) {
    face.LoadMovie(0, "");
    const auto captions = [this] {
        QStringList texts;
        for (const char* command : {"IDC_FS_azan", "IDC_FS_settings", "IDC_FS_tools", "IDC_FS_help",
                                    "IDC_FS_Qibla", "IDC_FS_allTimes"}) {
            texts << Button(command).text();
        }
        return texts;
    };
    EXPECT_EQ(captions(),
              (QStringList{"Athan", "Settings", "Tools", "Help", "Qibla", "Prayer Times"}));
    TellArabic(face);
    EXPECT_EQ(captions(), (QStringList{"الأذان", "الإعدادات", "الأدوات", "المساعدة", "القبلة",
                                       "مواقيت الصلاة"}));
}

TEST_F(FaceTest, NamesCountExactlyAndUnknownOnesAreIgnored) {
    face.LoadMovie(0, "");
    TellEnglish(face);
    const QStringList before = Lines();
    for (const char* name : {"_root.qibla", "_root.prayer_time", "_root.MyYear", "myYear", ""}) {
        face.SetVariable(name, "x");
    }
    EXPECT_EQ(Lines(), before);
    EXPECT_EQ(Button("IDC_FS_Qibla").text(), "Qibla");
}

TEST_F(FaceTest, EachButtonTellsItsCommand) {
    std::vector<std::string> expected;
    for (QAbstractButton* button : window.findChildren<QAbstractButton*>()) {
        Click(button->geometry().center());
        expected.push_back(button->objectName().toStdString());
    }
    EXPECT_EQ(commands, expected);
    EXPECT_THAT(commands, testing::UnorderedElementsAre(
                              "IDC_FS_Clock", "IDC_FS_Day", "IDC_FS_azan", "IDC_FS_settings",
                              "IDC_FS_tools", "IDC_FS_help", "IDC_FS_allTimes", "IDC_FS_Qibla",
                              "IDC_FS_minimize", "IDC_FS_close"));
}

TEST_F(FaceTest, EachButtonIsReachedByTabAndPressedByReturnAndBlank) {
    QApplication::setActiveWindow(&window);
    const qsizetype count = window.findChildren<QAbstractButton*>().size();
    std::set<QWidget*> reached;
    for (qsizetype step = 0; step < count; ++step) {
        QKeyEvent tab(QEvent::KeyPress, Qt::Key_Tab, Qt::NoModifier);
        QApplication::sendEvent(QApplication::focusWidget(), &tab);
        QWidget* button = QApplication::focusWidget();
        reached.insert(button);
        commands.clear();
        for (const Qt::Key key : {Qt::Key_Return, Qt::Key_Space}) {
            QKeyEvent press(QEvent::KeyPress, key, Qt::NoModifier);
            QApplication::sendEvent(button, &press);
            QKeyEvent release(QEvent::KeyRelease, key, Qt::NoModifier);
            QApplication::sendEvent(button, &release);
        }
        const std::string command = button->objectName().toStdString();
        EXPECT_EQ(commands, (std::vector<std::string>{command, command}));
    }
    EXPECT_EQ(reached.size(), static_cast<std::size_t>(count));
}

TEST_F(FaceTest, MenuThatIsLeftSidewaysOpensItsNeighbourAroundTheEnds) {
    std::vector<int> steps = {1, 1, 1, 1, -1, -1};
    face.onFSCommand = [&](const std::string& command, const std::string&) {
        commands.push_back(command);
        if (!steps.empty()) {
            window.setProperty(kMenuStep, steps.front());
            steps.erase(steps.begin());
        }
    };
    Button("IDC_FS_settings").click();
    EXPECT_EQ(commands, (std::vector<std::string>{"IDC_FS_settings", "IDC_FS_tools", "IDC_FS_help",
                                                  "IDC_FS_azan", "IDC_FS_settings", "IDC_FS_azan",
                                                  "IDC_FS_help"}));
}

TEST_F(FaceTest, EachMenuHasTheKeyOfALetterOfItsOwn) {
    face.LoadMovie(0, "");
    TellEnglish(face);
    EXPECT_EQ(Button("IDC_FS_azan").shortcut(), QKeySequence("Alt+A"));
    EXPECT_EQ(Button("IDC_FS_help").shortcut(), QKeySequence("Alt+H"));
    face.SetVariable("_root.settings", "Ajustes");
    EXPECT_EQ(Button("IDC_FS_settings").shortcut(), QKeySequence("Alt+J"));
}

TEST_F(FaceTest, ButtonReachedByKeyShowsIt) {
    QAbstractButton& button = Button("IDC_FS_tools");
    QApplication::setActiveWindow(&window);
    button.setFocus(Qt::OtherFocusReason);
    const QImage without = button.grab().toImage();
    Button("IDC_FS_help").setFocus(Qt::TabFocusReason);
    button.setFocus(Qt::BacktabFocusReason);
    EXPECT_NE(button.grab().toImage(), without);
}

TEST_F(FaceTest, EachButtonHasANameForAssistiveTools) {
    face.LoadMovie(0, "");
    TellEnglish(face);
    for (const QAbstractButton* button : window.findChildren<QAbstractButton*>()) {
        EXPECT_FALSE((button->text() + button->accessibleName()).isEmpty())
            << button->objectName().toStdString();
    }
}

TEST_F(FaceTest, PressOnTheGroundDragsAndTheRightButtonDoesNothing) {
    Click(QPoint(410, 350));
    Click(QPoint(100, 390));  // among the times
    EXPECT_EQ(commands, (std::vector<std::string>{"IDC_FS_drag", "IDC_FS_drag"}));
    Click(QPoint(410, 350), Qt::RightButton);
    Click(Button("IDC_FS_azan").geometry().center(), Qt::RightButton);
    EXPECT_EQ(commands.size(), 2U);
}

TEST_F(FaceTest, ClickOnThePlaceAsksForItOnTheRelease) {
    const QPoint place = window.findChild<QWidget*>("place")->geometry().center();
    Mouse(QEvent::MouseButtonPress, place);
    EXPECT_TRUE(commands.empty());
    Mouse(QEvent::MouseMove, place + QPoint(2, 1));
    Mouse(QEvent::MouseButtonRelease, place + QPoint(2, 1), Qt::RightButton);
    EXPECT_TRUE(commands.empty());
    Mouse(QEvent::MouseButtonRelease, place + QPoint(2, 1));
    EXPECT_EQ(commands, std::vector<std::string>{"IDC_FS_place"});
    Click(place, Qt::RightButton);
    EXPECT_EQ(commands.size(), 1U);
}

TEST_F(FaceTest, DragThatBeginsOnThePlaceMovesTheFaceAndAsksForNothing) {
    const QPoint place = window.findChild<QWidget*>("place")->geometry().center();
    Mouse(QEvent::MouseButtonPress, place);
    Mouse(QEvent::MouseMove, place + QPoint(30, 0));
    Mouse(QEvent::MouseMove, place + QPoint(60, 0));
    Mouse(QEvent::MouseButtonRelease, place + QPoint(60, 0));
    EXPECT_EQ(commands, std::vector<std::string>{"IDC_FS_drag"});
}

TEST_F(FaceTest, MenusStandSideBySideAndFitWhateverTheirTexts) {
    face.LoadMovie(0, "");
    for (const char* name : {"_root.azan", "_root.settings", "_root.tools", "_root.help"}) {
        face.SetVariable(name, "Konfigurationseinstellungen");
    }
    EXPECT_EQ(Button("IDC_FS_azan").x(), 50);
    EXPECT_EQ(Button("IDC_FS_settings").x(), Button("IDC_FS_azan").geometry().right() + 1);
    EXPECT_LE(Button("IDC_FS_help").geometry().right(), 400);
}

TEST_F(FaceTest, MenusFromRightToLeftBeginAtTheRight) {
    face.LoadMovie(0, "");
    for (const char* name : {"_root.azan", "_root.settings", "_root.tools", "_root.help"}) {
        face.SetVariable(name, "الأدوات");
    }
    const auto of = [this](const char* name) { return Button(name).geometry(); };
    EXPECT_EQ(of("IDC_FS_azan").right(), 420 - 50 - 1);
    EXPECT_EQ(of("IDC_FS_settings").right(), of("IDC_FS_azan").left() - 1);
    EXPECT_LT(of("IDC_FS_help").right(), of("IDC_FS_tools").left());
}

TEST_F(FaceTest, HeadingIsMarkedWhileItsMenuIsOpen) {
    QAbstractButton& heading = Button("IDC_FS_tools");
    const QImage usual = heading.grab().toImage();
    QImage open;
    face.onFSCommand = [&](const std::string&, const std::string&) {
        open = heading.grab().toImage();
    };
    heading.click();
    EXPECT_NE(open, usual);
    EXPECT_EQ(heading.grab().toImage(), usual);
}

/// The face on an English desktop, in whose pack's language the toolkit names days and months.
class FaceInAPackTest : public testing::Test {
protected:
    FaceInAPackTest() {
        face.Fill(window);
        face.LoadMovie(0, "");
        view = window.findChild<FaceView*>();
    }

    QString Day() { return view->findChild<QAbstractButton*>("IDC_FS_Day")->text(); }
    QString FirstLine() { return view->findChildren<TextLine*>().first()->text(); }

    std::optional<QLocale> language = QLocale(QStringLiteral("ar"));
    TestPlatform platform;
    QtFace face{[this] { return language; }};
    QWidget window;
    FaceView* view;
};

TEST_F(FaceInAPackTest, DayAndMonthAreNamedInTheLanguageOfThePack) {
    TellArabic(face);
    EXPECT_EQ(Day(), "السبت");
    EXPECT_EQ(FirstLine(), "21 نوفمبر 2026");
}

TEST_F(FaceInAPackTest, NamesFollowThePackThatComesWithNewCaptions) {
    TellArabic(face);
    language = QLocale(QStringLiteral("de"));
    face.SetVariable("prayer_time", "Gebetszeiten");
    EXPECT_EQ(Day(), "Samstag");
    EXPECT_EQ(FirstLine(), "21. November 2026");
}

TEST_F(FaceInAPackTest, DateIsWrittenAsTheLanguageWritesItWithTheDayInFront) {
    TellArabic(face);
    const std::pair<const char*, const char*> dates[] = {
        {"es", "21 de noviembre de 2026"}, {"fr", "21 novembre 2026"}, {"tr", "21 Kasım 2026"},
        {"ur", "21 نومبر 2026"},           {"bn", "21 নভেম্বর 2026"},   {"en", "21 November 2026"}};
    for (const auto& [code, date] : dates) {
        language = QLocale(QString::fromUtf8(code));
        face.SetVariable("prayer_time", "x");
        EXPECT_EQ(FirstLine().toStdString(), date);
    }
}

TEST_F(FaceInAPackTest, FirstOfAMonthIsWrittenAsThePackHasItBelowADayWithACapital) {
    platform.files.WriteWhole("/program/lang/French.ini",
                              BytesOf("[timetables]\nFirstOfMonth=1er\n"));
    currentLanguage = "French";
    language = QLocale(QStringLiteral("fr"));
    TellArabic(face);
    face.SetVariable("_root.myMonth", "December");
    face.SetVariable("_root.myNumber", "1");
    EXPECT_EQ(Day(), "Mardi");
    EXPECT_EQ(FirstLine(), "1er décembre 2026");
}

TEST_F(FaceInAPackTest, HijriDateIsArrangedByThePack) {
    platform.files.WriteWhole("/program/lang/German.ini",
                              BytesOf("[timetables]\nHijriDate={day}. {month} {year}\n"));
    currentLanguage = "German";
    face.SetVariable("_root.ArabicMonth", "Radschab");
    face.SetVariable("_root.iArabicYear", "1448");
    face.SetVariable("_root.iArabicDay", "11");
    EXPECT_EQ(view->findChildren<TextLine*>().at(1)->text(), "11. Radschab 1448");
}

TEST_F(FaceInAPackTest, ButtonsWithSignsAreNamedInTheLanguageOfThePack) {
    const auto name = [this](const char* button) {
        return view->findChild<QAbstractButton*>(button)->accessibleName().toStdString();
    };
    EXPECT_EQ(name("IDC_FS_minimize"), "Minimize");
    platform.files.WriteWhole("/program/lang/French.ini",
                              BytesOf("[desktop]\nMinimize=Réduire\nClose=Fermer\n"));
    currentLanguage = "French";
    face.SetVariable("prayer_time", "x");
    EXPECT_EQ(name("IDC_FS_minimize"), "Réduire");
    EXPECT_EQ(name("IDC_FS_close"), "Fermer");
    EXPECT_EQ(view->findChild<QAbstractButton*>("IDC_FS_close")->toolTip(), "Fermer");
}

TEST_F(FaceInAPackTest, NamesFollowTheDate) {
    TellArabic(face);
    face.SetVariable("_root.myDay", "Tuesday");
    face.SetVariable("_root.myMonth", "December");
    face.SetVariable("_root.myNumber", "1");
    EXPECT_EQ(Day(), "الثلاثاء");
    EXPECT_EQ(FirstLine(), "1 ديسمبر 2026");
}

TEST_F(FaceInAPackTest, NamesThatTheToolkitDoesNotHaveAreShownAsTold) {
    language.reset();
    TellArabic(face);
    EXPECT_EQ(Day(), "Saturday");
    EXPECT_EQ(FirstLine(), "21 November 2026");
}

TEST_F(FaceInAPackTest, WhatIsNoDateIsShownAsTold) {
    face.SetVariable("_root.myDay", "Saturday");
    face.SetVariable("_root.myMonth", "Novembre");
    EXPECT_EQ(Day(), "Saturday");
    EXPECT_EQ(FirstLine(), "Novembre");
}

/// The widgets that were painted.
class Painted : public QObject {
public:
    explicit Painted(QWidget& view) {
        for (QWidget* widget : view.findChildren<QWidget*>()) {
            widget->installEventFilter(this);
        }
    }

    /// All that is painted up to and with the next turn of the clock.
    QSet<QObject*> WithNextTurnOf(QAbstractButton& clock) {
        widgets_.clear();
        while (!widgets_.contains(&clock)) {
            QApplication::processEvents(QEventLoop::WaitForMoreEvents);
        }
        return widgets_;
    }

protected:
    bool eventFilter(QObject* watched, QEvent* event) override {
        if (event->type() == QEvent::Paint) {
            widgets_.insert(watched);
        }
        return false;
    }

private:
    QSet<QObject*> widgets_;
};

TEST_F(FaceTest, ATickPaintsTheCountdownAndTheClockAlone) {
    Painted painted(View());
    QAbstractButton& clock = Button("IDC_FS_Clock");
    face.LoadMovie(0, "");
    TellEnglish(face);
    painted.WithNextTurnOf(clock);
    TellEnglish(face);
    face.SetVariable("_root.sNextRemaining", "Remaining: 2:35:59");
    EXPECT_EQ(painted.WithNextTurnOf(clock).size(), 2);
}

/// What is painted of a widget.
class PaintedRegion : public QObject {
public:
    explicit PaintedRegion(QWidget& widget) { widget.installEventFilter(this); }

    /// With the next turn that paints it.
    QRect Next() {
        region_ = {};
        while (region_.isEmpty()) {
            QApplication::processEvents(QEventLoop::WaitForMoreEvents);
        }
        return region_.boundingRect();
    }

protected:
    bool eventFilter(QObject*, QEvent* event) override {
        if (event->type() == QEvent::Paint) {
            region_ += static_cast<QPaintEvent*>(event)->region();
        }
        return false;
    }

private:
    QRegion region_;
};

TEST_F(FaceTest, ASecondPaintsTheDigitsOfTheCountdownAlone) {
    auto& line = *window.findChild<CountdownLine*>("countdown");
    PaintedRegion painted(line);
    line.ShowCountdown("Remaining:", 9359);
    painted.Next();
    line.ShowCountdown("Remaining:", 9358);
    const QRect digits = painted.Next();
    EXPECT_LT(digits.width(), line.width() * 2 / 3);
    EXPECT_EQ(digits.right(), line.rect().right());
    line.ShowCountdown("Noch", 9358);
    EXPECT_EQ(painted.Next(), line.rect());
    line.ShowCountdown("Noch", 360000);
    EXPECT_EQ(painted.Next(), line.rect()) << "wider digits leave the words less room";
}

TEST(ClockOfTheFace, HandsMoveWithTheCountdown) {
    const TestPlatform platform;
    QTime now(3, 0, 0);
    FaceView view([&] { return now; });
    auto& clock = *view.findChild<QAbstractButton*>("IDC_FS_Clock");
    const QImage three = clock.grab().toImage();
    now = QTime(9, 0, 0);
    EXPECT_EQ(clock.grab().toImage(), three);
    view.SetVariable("_root.sNextRemaining", "Remaining: 1:0:0");
    EXPECT_NE(clock.grab().toImage(), three);
}

}  // namespace
}  // namespace horavex
