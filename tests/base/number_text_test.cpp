#include "base/number_text.h"

#include <gtest/gtest.h>

#include <bit>
#include <cmath>
#include <cstdint>
#include <cstdio>
#include <cstdlib>
#include <limits>
#include <random>
#include <string>

#include "base/fault.h"

namespace horavex {
namespace {

TEST(NumberToText, WholeNumbersAreTheirDigits) {
    EXPECT_EQ(NumberToText(7.0), "7");
    EXPECT_EQ(NumberToText(-3.0), "-3");
    EXPECT_EQ(NumberToText(100.0), "100");
    EXPECT_EQ(NumberToText(-36892.0), "-36892");
}

TEST(NumberToText, FractionsKeepALeadingZeroAndNoTrailingOnes) {
    EXPECT_EQ(NumberToText(0.25), "0.25");
    EXPECT_EQ(NumberToText(-0.5), "-0.5");
    EXPECT_EQ(NumberToText(12.50), "12.5");
    EXPECT_EQ(NumberToText(-118.25), "-118.25");
    EXPECT_EQ(NumberToText(0.0001), "0.0001");
}

TEST(NumberToText, BothZerosAreZero) {
    EXPECT_EQ(NumberToText(0.0), "0");
    EXPECT_EQ(NumberToText(-0.0), "0");
}

TEST(NumberToText, FifteenDigitsHideTheErrorOfAFloat) {
    EXPECT_EQ(NumberToText(0.1 + 0.2), "0.3");
    EXPECT_EQ(NumberToText(1.1 * 1.1), "1.21");
    EXPECT_EQ(NumberToText(1.0 - 0.9), "0.1");
}

TEST(NumberToText, KeepsFifteenSignificantDigits) {
    EXPECT_EQ(NumberToText(4.0 * std::atan(1.0)), "3.14159265358979");
    EXPECT_EQ(NumberToText(100.0 / 3.0), "33.3333333333333");
    EXPECT_EQ(NumberToText(2.0 / 3.0), "0.666666666666667");
    EXPECT_EQ(NumberToText(12345678901234.5), "12345678901234.5");
}

TEST(NumberToText, FifteenDigitsBeforeTheMarkArePlainAndSixteenAreNot) {
    EXPECT_EQ(NumberToText(999999999999999.0), "999999999999999");
    EXPECT_EQ(NumberToText(1e14), "100000000000000");
    EXPECT_EQ(NumberToText(1e15), "1E+15");
    EXPECT_EQ(NumberToText(-1234567890123456.0), "-1.23456789012346E+15");
}

TEST(NumberToText, FifteenPlacesBehindTheMarkArePlainAndSixteenAreNot) {
    EXPECT_EQ(NumberToText(1e-15), "0.000000000000001");
    EXPECT_EQ(NumberToText(1e-16), "1E-16");
    EXPECT_EQ(NumberToText(0.123456789012345), "0.123456789012345");
    EXPECT_EQ(NumberToText(0.0123456789012345), "1.23456789012345E-02");
    EXPECT_EQ(NumberToText(0.012345678901234), "0.012345678901234");
    EXPECT_EQ(NumberToText(1.5e-15), "1.5E-15");
}

TEST(NumberToText, AnEndlessFractionBelowATenthGoesScientific) {
    EXPECT_EQ(NumberToText(1.0 / 30.0), "3.33333333333333E-02");
    EXPECT_EQ(NumberToText(-1.0 / 30.0), "-3.33333333333333E-02");
    EXPECT_EQ(NumberToText(1.0 / 3.0), "0.333333333333333");
}

TEST(NumberToText, ExponentHasTwoDigitsOrAsManyAsItNeeds) {
    EXPECT_EQ(NumberToText(2e99), "2E+99");
    EXPECT_EQ(NumberToText(2e100), "2E+100");
    EXPECT_EQ(NumberToText(-2.5e-100), "-2.5E-100");
    EXPECT_EQ(NumberToText(std::numeric_limits<double>::max()), "1.79769313486232E+308");
    EXPECT_EQ(NumberToText(std::numeric_limits<double>::denorm_min()), "4.94065645841247E-324");
}

TEST(NumberToText, RoundingCarriesIntoANewDigit) {
    EXPECT_EQ(NumberToText(std::nextafter(1.0, 0.0)), "1");
    EXPECT_EQ(NumberToText(std::nextafter(0.001, 0.0)), "0.001");
    EXPECT_EQ(NumberToText(-9.9999999999999996), "-10");
    EXPECT_EQ(NumberToText(std::nextafter(1e23, 0.0)), "1E+23");
}

TEST(NumberToText, CarryMovesANumberAcrossTheLimitOfPlainDigits) {
    EXPECT_EQ(NumberToText(999999999999999.4), "999999999999999");
    EXPECT_EQ(NumberToText(999999999999999.6), "1E+15");
    EXPECT_EQ(NumberToText(9.9999999999999996e-16), "0.000000000000001");
    EXPECT_EQ(NumberToText(0.09999999999999999), "0.1");
}

TEST(NumberToText, TheMarkIsTheCallersInEveryForm) {
    EXPECT_EQ(NumberToText(-0.25, ','), "-0,25");
    EXPECT_EQ(NumberToText(12.5, ','), "12,5");
    EXPECT_EQ(NumberToText(1.0 / 30.0, ','), "3,33333333333333E-02");
    EXPECT_EQ(NumberToText(1e15, ','), "1E+15");
    EXPECT_EQ(NumberToText(1000.0, ','), "1000");
}

TEST(IsNumeric, TakesDigitsWithOneSignAndOneMark) {
    for (const char* text : {"0", "007", "-1", "+1", "1.5", "1,5", "-0,5"}) {
        EXPECT_TRUE(IsNumeric(text)) << text;
    }
}

TEST(IsNumeric, DigitsOnOneSideOfTheMarkAreEnough) {
    for (const char* text : {"1.", ".5", "-.5", "+1,", ",5"}) {
        EXPECT_TRUE(IsNumeric(text)) << text;
    }
}

TEST(IsNumeric, TakesBlanksAroundButNotInside) {
    EXPECT_TRUE(IsNumeric(" 12 "));
    EXPECT_TRUE(IsNumeric("\t12\t"));
    for (const char* text : {"1 2", "- 1", "1 .5", "1 e5", "1e 5", "12\n"}) {
        EXPECT_FALSE(IsNumeric(text)) << text;
    }
}

TEST(IsNumeric, TakesAnExponentWithDigits) {
    for (const char* text : {"1e5", "1E5", "1e+5", "1E-05", ".5e1", "1.e1", " -1,5E+15 "}) {
        EXPECT_TRUE(IsNumeric(text)) << text;
    }
    for (const char* text : {"1e", "1e+", "1E-", "e5", ".e5", "1e5.5", "1e--5", "1e5e5"}) {
        EXPECT_FALSE(IsNumeric(text)) << text;
    }
}

TEST(IsNumeric, SignsAndMarksAloneAreNoNumber) {
    for (const char* text : {"", " ", "-", "+", ".", ",", "-.", "--1", "+-1", "1-"}) {
        EXPECT_FALSE(IsNumeric(text)) << text;
    }
}

TEST(IsNumeric, TakesOneMarkOnly) {
    for (const char* text : {"1.2.3", "1,2,3", "1,234.5", "1..", ".,5"}) {
        EXPECT_FALSE(IsNumeric(text)) << text;
    }
}

TEST(IsNumeric, OtherNotationsAreNoNumber) {
    for (const char* text : {"0x10", "&H10", "1d5", "inf", "nan", "5%", "$5", "٣", "½", "abc"}) {
        EXPECT_FALSE(IsNumeric(text)) << text;
    }
    EXPECT_FALSE(IsNumeric(std::string_view("1\0", 2)));
}

TEST(TextToNumber, ReadsPointAndCommaAlike) {
    EXPECT_EQ(TextToNumber("5.75"), 5.75);
    EXPECT_EQ(TextToNumber("5,75"), 5.75);
    EXPECT_EQ(TextToNumber("-,5"), -0.5);
}

TEST(TextToNumber, ReadsSignsBlanksAndExponents) {
    EXPECT_EQ(TextToNumber(" +3 "), 3.0);
    EXPECT_EQ(TextToNumber("-12"), -12.0);
    EXPECT_EQ(TextToNumber("1."), 1.0);
    EXPECT_EQ(TextToNumber("1,5e-1"), 0.15);
    EXPECT_EQ(TextToNumber("3.33333333333333E-02"), 3.33333333333333e-2);
    EXPECT_EQ(TextToNumber("1E+15"), 1e15);
    EXPECT_EQ(TextToNumber("-2e+03"), -2000.0);
}

TEST(TextToNumber, ReadsTheNearestFloat) {
    EXPECT_EQ(TextToNumber("0.1"), 0.1);
    EXPECT_EQ(TextToNumber("9007199254740993"), 9007199254740992.0);
    EXPECT_EQ(TextToNumber("1.7976931348623157e308"), std::numeric_limits<double>::max());
    EXPECT_EQ(TextToNumber("4.9e-324"), std::numeric_limits<double>::denorm_min());
}

TEST(TextToNumber, ZeroTakesAnyExponent) {
    EXPECT_EQ(TextToNumber("0e999"), 0.0);
    EXPECT_EQ(TextToNumber("0.000e-999"), 0.0);
}

TEST(TextToNumber, TextThatIsNoNumberIsATypeMismatch) {
    for (const char* text : {"", "-", "abc", "1 2", "12:30", "1e", "0x10"}) {
        EXPECT_THROW(TextToNumber(text), TypeMismatchFault) << text;
    }
}

TEST(TextToNumber, NumberTooLargeForAFloatOverflows) {
    for (const char* text : {"1e309", "-1e309", "1.8e308", "1e99999999999999999999"}) {
        EXPECT_THROW(TextToNumber(text), OverflowFault) << text;
    }
}

TEST(TextToNumber, NumberTooSmallForAFloatOverflows) {
    for (const char* text : {"1e-400", "-1e-400", "1e-99999999999999999999"}) {
        EXPECT_THROW(TextToNumber(text), OverflowFault) << text;
    }
}

/// The value rounded to 15 significant digits by the C library.
double ToFifteenDigits(double value) {
    char text[64];
    std::snprintf(text, sizeof text, "%.14e", value);
    return std::strtod(text, nullptr);
}

TEST(TextToNumber, ReadsBackFifteenDigitsOfAnyFloat) {
    std::mt19937_64 random(1);
    for (int i = 0; i < 100000; ++i) {
        const double value = std::bit_cast<double>(random());
        if (!std::isfinite(value) || std::fabs(value) > 1.7e308) {
            continue;
        }
        ASSERT_EQ(TextToNumber(NumberToText(value)), ToFifteenDigits(value)) << value;
        ASSERT_EQ(TextToNumber(NumberToText(value, ',')), ToFifteenDigits(value)) << value;
    }
}

TEST(TextToNumber, ReadsBackFifteenDigitsOfEverydayNumbers) {
    std::mt19937_64 random(2);
    std::uniform_real_distribution<double> degrees(-360.0, 360.0);
    for (int i = 0; i < 100000; ++i) {
        const double value = degrees(random);
        ASSERT_EQ(TextToNumber(NumberToText(value)), ToFifteenDigits(value)) << value;
    }
}

TEST(TextToNumber, ReadsBackEveryHundredthOfADegreeExactly) {
    for (int hundredths = -18000; hundredths <= 18000; ++hundredths) {
        const double degrees = hundredths / 100.0;
        ASSERT_EQ(TextToNumber(NumberToText(degrees)), degrees);
    }
}

TEST(NumberToText, WhatIsNotFiniteIsAWord) {
    EXPECT_EQ(NumberToText(NAN), "NaN");
    EXPECT_EQ(NumberToText(INFINITY), "Infinity");
    EXPECT_EQ(NumberToText(-INFINITY), "-Infinity");
    EXPECT_FALSE(IsNumeric("NaN"));
    EXPECT_FALSE(IsNumeric("-Infinity"));
}

TEST(SignedFixedText, LeavesWhatIsTooGreatForItToTheGeneralForm) {
    EXPECT_EQ(SignedFixedText(999999.0), "+999999.00");
    EXPECT_EQ(SignedFixedText(1e6), "1000000");
    EXPECT_EQ(SignedFixedText(-9.3e16), "-9.3E+16");
    EXPECT_EQ(SignedFixedText(1e300), "1E+300");
    EXPECT_EQ(SignedFixedText(NAN), "NaN");
}

TEST(NumberIn, IsNothingForWhatIsNoNumberOrNoFloatHolds) {
    EXPECT_EQ(NumberIn(" 2,5 "), 2.5);
    EXPECT_EQ(NumberIn("two"), std::nullopt);
    EXPECT_EQ(NumberIn("1e400"), std::nullopt);
    EXPECT_EQ(NumberIn("1e-400"), std::nullopt);
}

}  // namespace
}  // namespace horavex
