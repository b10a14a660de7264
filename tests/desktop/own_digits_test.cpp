// What users see in the digits of their language.

#include "lang/own_digits.h"

#include <QAbstractButton>
#include <QAction>
#include <QMessageBox>
#include <QTimer>

#include "desktop/face/compass.h"
#include "desktop/face/countdown_line.h"
#include "desktop/face/face_day.h"
#include "desktop/face/fitted_text.h"
#include "desktop/face/poster_layout.h"
#include "desktop/form_window/menu.h"
#include "desktop/form_window_fixture.h"
#include "desktop/pack_day.h"
#include "desktop/ports/qt_dialogs.h"
#include "lang/language_pack.h"
#include "support/data_folder.h"

namespace horavex {
namespace {

class OwnDigitsInWindows : public FormWindowTest {
protected:
    OwnDigitsInWindows() {
        data.Write("lang/Arabic.ini", "[timetables]\nDigits=٠١٢٣٤٥٦٧٨٩\n");
        data.Write("lang/Bengali.ini", "[timetables]\nDigits=০১২৩৪৫৬৭৮৯\n");
        currentLanguage = "Arabic";
    }

    static void Choose(bool wanted) {
        ShowOwnDigits(wanted);
        Settle();
    }

    /// A user's keys in a line that has the focus.
    static void Type(QLineEdit& line, const QString& text) {
        line.setFocus();
        for (const QChar key : text) {
            Key(line, Qt::Key_unknown, key);
        }
        Settle();
    }

    DataFolder data{platform.files};
};

TEST_F(OwnDigitsInWindows, EveryKindThatIsOpenShowsThemAtOnceBothWays) {
    form.SetCaption("Year 2026");
    form.frame.SetCaption("1");
    form.option(1).SetCaption("2");
    form.label.SetCaption("3:30");
    form.button.SetCaption("4");
    form.check.SetCaption("5");
    form.check.SetToolTipText("6");
    form.text.SetText("7");
    form.list.AddItem("8");
    form.choice.AddItem("9");
    Show();
    const auto texts = [this] {
        return QStringList{Window().windowTitle(),
                           Find<QGroupBox>("frame").title(),
                           Find<QRadioButton>("option_1").text(),
                           Find<QLabel>("label").text(),
                           Find<QPushButton>("button").text(),
                           Find<QCheckBox>("check").text(),
                           Find<QCheckBox>("check").toolTip(),
                           Find<QLineEdit>("text").text(),
                           Find<QListWidget>("list").item(3)->text(),
                           Find<QComboBox>("choice").itemText(3)};
    };
    const QStringList plain{"Year 2026", "1", "2", "3:30", "4", "5", "6", "7", "8", "9"};
    EXPECT_EQ(texts(), plain);
    Choose(true);
    EXPECT_EQ(texts(), (QStringList{"Year ٢٠٢٦", "١", "٢", "٣:٣٠", "٤", "٥", "٦", "٧", "٨", "٩"}));
    Choose(false);
    EXPECT_EQ(texts(), plain);
}

TEST_F(OwnDigitsInWindows, EitherDigitsAreTypedAndReadAndStayAsTypedUntilTheLineIsLeft) {
    form.text.SetText("");
    Show();
    Choose(true);
    auto& line = Find<QLineEdit>("text");
    Type(line, "1٢.3");
    EXPECT_EQ(form.text.Text(), "12.3");
    EXPECT_EQ(line.text(), "1٢.3");
    line.setCursorPosition(1);
    Type(line, "5");
    EXPECT_EQ(line.text(), "15٢.3");
    EXPECT_EQ(line.cursorPosition(), 2);
    Find<QPushButton>("button").setFocus();
    Settle();
    EXPECT_EQ(line.text(), "١٥٢٫٣");
    EXPECT_EQ(form.text.Text(), "152.3");
}

TEST_F(OwnDigitsInWindows, ListThatIsTypedInKeepsWhatIsTypedToo) {
    form.combo.AddItem("12");
    form.combo.SetText("");
    Show();
    Choose(true);
    auto& combo = Find<QComboBox>("combo");
    EXPECT_EQ(combo.itemText(2), "١٢");
    combo.setFocus();
    Type(*combo.lineEdit(), "12");
    EXPECT_EQ(form.combo.Text(), "12");
    EXPECT_EQ(combo.currentText(), "12");
    Find<QPushButton>("button").setFocus();
    Settle();
    EXPECT_EQ(combo.currentText(), "١٢");
}

TEST_F(OwnDigitsInWindows, WhatTheProgramAnswersToTypingIsShownInThem) {
    form.text.onChange = [this] { form.text.SetText("60"); };
    form.text.SetText("");
    Show();
    Choose(true);
    Type(Find<QLineEdit>("text"), "7");
    EXPECT_EQ(Find<QLineEdit>("text").text(), "٦٠");
}

TEST_F(OwnDigitsInWindows, ProgressIsToldInThem) {
    form.progress.SetValue(40);
    Show();
    EXPECT_EQ(Find<QProgressBar>("progress").text(), "40%");
    Choose(true);
    EXPECT_EQ(Find<QProgressBar>("progress").text(), "٤٠%");
}

TEST_F(OwnDigitsInWindows, MenusHaveThem) {
    Choose(true);
    form.menu.SetCaption("Menu");
    MenuItem entry(form.menu, "entry", {.caption = "Athan 2"});
    QMenu menu;
    FillMenu(menu, form.menu);
    EXPECT_EQ(menu.actions().value(0)->text(), "Athan ٢");
    EXPECT_TRUE(ShowsEntriesOf(menu, form.menu));
}

TEST_F(OwnDigitsInWindows, MessagesHaveThemButForPaths) {
    Choose(true);
    QString text;
    QTimer::singleShot(0, [&text] {
        auto* box = qobject_cast<QMessageBox*>(QApplication::activeModalWidget());
        text = box->text();
        box->reject();
    });
    QtDialogs([] {}).ShowMessage("2 errors: /home/2026", "", MessageIcon::kNone);
    EXPECT_EQ(text, "٢ errors: /home/2026");
}

TEST_F(OwnDigitsInWindows, FaceTellsTheDayInThem) {
    Choose(true);
    const FaceDay day = FaceDayOf(DayWithIqamas());
    EXPECT_EQ(day.rows.at(kFajr).time, "٠٥:١٧ AM");
    EXPECT_EQ(day.cells.at(kFajr).time, "٠٥:١٧ AM");
    EXPECT_EQ(day.clock, "١٢:٠٠ PM");
    EXPECT_EQ(CountdownDigits(9360), "٢:٣٦:٠٠");
    Compass compass(nullptr);
    compass.ShowBearing(136.2);
    EXPECT_EQ(compass.accessibleName(), "١٣٦°");
    ShowOwnDigits(false);
    compass.ShowBearing(136.2);
    EXPECT_EQ(compass.accessibleName(), "136°");
    ShowOwnDigits(true);
    TextLine line(nullptr, {15, Qt::white, Qt::AlignCenter});
    line.ShowText("21 November 2026");
    EXPECT_EQ(line.text(), "٢١ November ٢٠٢٦");
}

TEST_F(OwnDigitsInWindows, TimesInThemStayTogetherInArabicToo) {
    EXPECT_EQ(WithTimesIsolated(QStringLiteral("العصر الساعة ٢:٣٦:٠٠ PM")),
              QStringLiteral("العصر الساعة \u2066٢:٣٦:٠٠ PM\u2069"));
}

/// Digits of some sets are not equally wide.
TEST_F(OwnDigitsInWindows, CountdownOfThePosterStandsStillInThem) {
    currentLanguage = "Bengali";
    Choose(true);
    FaceDay day = FaceDayOf(DayWithIqamas());
    const PosterLayout layout({1920, 1080});
    day.seconds = 4271;
    const auto former = layout.Countdown(day);
    day.seconds = 4188;
    const auto later = layout.Countdown(day);
    ASSERT_EQ(former.size(), later.size());
    for (std::size_t text = 0; text < former.size(); ++text) {
        EXPECT_EQ(former[text].area, later[text].area);
    }
    EXPECT_EQ(later[1].text, "১:০৯:৪৮");
}

}  // namespace
}  // namespace horavex
