#include "desktop/ports/qt_formats.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <set>

#include "desktop/ports/date_time_pattern.h"
#include "platform/fixed_formats.h"
#include "support/scoped_variable.h"

namespace horavex {
namespace {

const Date kDay = DateSerial(2026, 11, 21);
const Date kEarly = kDay + TimeSerial(5, 31, 9);
const Date kLate = kDay + TimeSerial(17, 5, 0);

QtFormats In(const char* locale) {
    return QtFormats(QLocale(QString::fromLatin1(locale)));
}

TEST(QtFormats, EnglishOfTheUnitedStatesAgreesWithTheFixedForms) {
    const QtFormats formats = In("en_US");
    const FixedFormats fixed;
    for (const Date moment : {kEarly, kLate, kDay, kDay + 0.5, 0.0, 0.25}) {
        EXPECT_EQ(formats.MediumTime(moment), fixed.MediumTime(moment));
        EXPECT_EQ(formats.TwelveHourTime(moment), fixed.TwelveHourTime(moment));
        EXPECT_EQ(formats.LongTime(moment), fixed.LongTime(moment));
        EXPECT_EQ(formats.LongDate(moment), fixed.LongDate(moment));
        EXPECT_EQ(formats.ShortDate(moment), fixed.ShortDate(moment));
        EXPECT_EQ(formats.WeekdayName(moment), fixed.WeekdayName(moment));
        EXPECT_EQ(formats.MonthAndYear(moment), fixed.MonthAndYear(moment));
    }
    EXPECT_EQ(formats.MediumTime(kEarly), "05:31 AM");
    EXPECT_EQ(formats.DecimalMark(), '.');
}

TEST(QtFormats, TimesAreRoundedToAWholeSecondFirst) {
    const QtFormats formats = In("en_US");
    const Date justBefore = kDay + TimeSerial(5, 31, 59) + 0.7 / kSecondsPerDay;
    EXPECT_EQ(formats.MediumTime(justBefore), "05:32 AM");
    EXPECT_EQ(formats.LongTime(justBefore), "5:32:00 AM");
    const Date midnight = kDay + 1.0 - 0.3 / kSecondsPerDay;
    EXPECT_EQ(formats.LongTime(midnight), "12:00:00 AM");
    EXPECT_EQ(formats.ShortDate(midnight), "11/22/2026");
}

TEST(QtFormats, OtherLocalesHaveTheirOwnForms) {
    EXPECT_EQ(In("de_DE").MediumTime(kEarly), "05:31");
    EXPECT_EQ(In("de_DE").LongTime(kLate), "17:05:00");
    EXPECT_EQ(In("de_DE").LongDate(kDay), "Samstag, 21. November 2026");
    EXPECT_EQ(In("de_DE").ShortDate(kDay), "21.11.2026");
    EXPECT_EQ(In("de_DE").DecimalMark(), ',');
    EXPECT_EQ(In("fi_FI").MediumTime(kEarly), "05.31");
    EXPECT_EQ(In("fr_CA").MediumTime(kEarly), "05 h 31");
    EXPECT_EQ(In("fr_CA").LongTime(kLate), "17 h 05 min 00 s");
    EXPECT_EQ(In("C").MediumTime(kLate), "17:05");
    EXPECT_EQ(In("ar_EG").MediumTime(kEarly), "05:31 ص") << "in plain digits";
    EXPECT_EQ(In("zh_TW").MediumTime(kLate), "下午05:05");
}

TEST(QtFormats, TwelveHourTimeKeepsTheDialWhereTheLocaleCountsToTwentyFour) {
    EXPECT_EQ(In("de_DE").TwelveHourTime(kLate), "05:05 PM");
    EXPECT_EQ(In("ar_EG").TwelveHourTime(kEarly), "05:31 ص");
}

TEST(QtFormats, DigitsArePlainWhateverTheLocalesOwn) {
    for (const char* locale : {"ar_EG", "fa_IR", "bn_BD", "my_MM", "ff_Adlm_GN"}) {
        EXPECT_THAT(In(locale).LongTime(kLate), testing::HasSubstr("05:00")) << locale;
        EXPECT_THAT(In(locale).ShortDate(kDay), testing::HasSubstr("2026")) << locale;
    }
}

TEST(QtFormats, MonthAndYearStandAlone) {
    EXPECT_EQ(In("de_DE").MonthAndYear(kDay), "November 2026");
    EXPECT_EQ(In("pl_PL").MonthAndYear(kDay), "listopad 2026");
    EXPECT_EQ(In("ar_EG").MonthAndYear(kDay), "نوفمبر 2026");
}

TEST(QtFormats, LongTimeOfEachLocaleTellsAllSecondsApart) {
    for (const QLocale& locale : QLocale::matchingLocales(QLocale::AnyLanguage, QLocale::AnyScript,
                                                          QLocale::AnyTerritory)) {
        const QtFormats formats(locale);
        std::set<std::string> texts;
        for (const int hour : {0, 5, 12, 17, 23}) {
            for (const int second : {0, 9, 10, 59}) {
                texts.insert(formats.LongTime(TimeSerial(hour, 31, second)));
                texts.insert(formats.LongTime(TimeSerial(hour, 3, second)));
            }
        }
        EXPECT_EQ(texts.size(), 40U) << locale.name().toStdString();
    }
}

TEST(DateTimePattern, QuotedLettersStay) {
    EXPECT_EQ(MediumTimePattern("H 'hst' mm:ss"), "HH 'hst' mm");
    EXPECT_EQ(LongTimePattern("HH 'h' mm 'min' ss 's' t"), "HH 'h' mm 'min' ss 's'");
    EXPECT_EQ(ShortDatePattern("d.MM.yy 'y.'"), "d.MM.yyyy 'y.'");
}

}  // namespace
}  // namespace horavex
