#include "config/adjustments_display.h"

#include <cstdlib>

#include "base/rounding.h"
#include "calendar/date_words.h"
#include "calendar/hijri_converter.h"
#include "config/adjusted_day.h"
#include "engine/moment_text.h"
#include "engine/solar_event.h"
#include "lang/filled_text.h"
#include "lang/language_pack.h"
#include "lang/pack_number.h"
#include "platform/platform.h"
#include "store/location_record.h"
#include "windows/frm_adjust.h"

namespace horavex {

namespace {

constexpr HighLatitudeRule kRules[] = {HighLatitudeRule::kNone, HighLatitudeRule::kMiddle,
                                       HighLatitudeRule::kSeventh, HighLatitudeRule::kAngle,
                                       HighLatitudeRule::kNearest};

std::string Word(const char* key, const char* english) {
    return GetLangString("adjustments", key, english);
}

/// One sentence on what a rule does.
std::string RuleText(HighLatitudeRule rule) {
    switch (rule) {
        case HighLatitudeRule::kNone:
            return Word("RuleNone",
                        "A year with nights in which the sun does not sink to the angle cannot be "
                        "calculated.");
        case HighLatitudeRule::kMiddle:
            return Word("RuleMiddle",
                        "Isha comes at the middle of the night at the latest, Fajr at the "
                        "earliest.");
        case HighLatitudeRule::kSeventh:
            return Word("RuleSeventh",
                        "Isha comes at the end of the first seventh of the night at the latest, "
                        "Fajr at the beginning of the last at the earliest.");
        case HighLatitudeRule::kAngle:
            return Word("RuleAngle",
                        "The same with a sixtieth of the night for each degree of the angle: with "
                        "18 degrees, three tenths.");
        case HighLatitudeRule::kNearest:
            break;
    }
    return Word("RuleNearest",
                "A twilight that does not come takes its time from the last day that had it.");
}

std::string DegreesText(double angle) {
    return PackNumber(angle) + "\u00b0";
}

std::string MinutesText(const std::string& minutes) {
    return FilledText(Word("Minutes", "{minutes} min"), "{minutes}", minutes);
}

std::string SignedText(int number) {
    return (number > 0 ? "+" : number < 0 ? "\u2212" : "") + std::to_string(std::abs(number));
}

/// Minutes of an interval; what counts in its stead without one.
std::string IntervalText(int minutes, const std::string& without) {
    return minutes == 0 ? without : MinutesText(std::to_string(minutes));
}

const Authority* UsualHere() {
    return AuthorityOfCountry(ActiveLocation.Country);
}

/// By row but for the first one.
std::vector<const Authority*> ListedMethods() {
    const Authority* const usual = UsualHere();
    std::vector<const Authority*> methods;
    if (usual != nullptr) {
        methods.push_back(usual);
    }
    for (const Authority& authority : Authorities()) {
        if (&authority != usual) {
            methods.push_back(&authority);
        }
    }
    return methods;
}

std::string NameInList(const Authority& authority) {
    const std::string name = GetLangString("methods", authority.key, authority.name);
    if (&authority != UsualHere()) {
        return name;
    }
    const std::string usual = Word("UsualIn", "{method} (usual in {country})");
    return FilledText(FilledText(usual, "{method}", name), "{country}", ActiveLocation.Country);
}

int RowOf(const Adjustments& adjustments) {
    const auto methods = ListedMethods();
    const auto isIn = [&](std::size_t row) {
        return row > 0 && IsMethod(*methods[row - 1], adjustments);
    };
    const int shown = frmAdjust->cboMethod.ListIndex();
    if (shown > 0 && isIn(static_cast<std::size_t>(shown))) {
        return shown;
    }
    for (std::size_t row = 1; row <= methods.size(); ++row) {
        if (isIn(row)) {
            return static_cast<int>(row);
        }
    }
    return 0;
}

void RefuseMethodsOutside(const AngleLimits& limits) {
    std::string refusal = Word("OutOfRange",
                               "Without a rule for high latitudes the angles of this place go from "
                               "{least} to {most} degrees");
    refusal = FilledText(refusal, "{least}", std::to_string(limits.smallest));
    refusal = FilledText(refusal, "{most}", std::to_string(limits.largest));
    int row = 0;
    for (const Authority* method : ListedMethods()) {
        frmAdjust->cboMethod.SetItemRefusal(++row, FitsLimits(*method, limits) ? "" : refusal);
    }
}

void ShowAngle(ScrollBar& bar, Label& label, double angle) {
    bar.SetValue(NearestInt(angle * kStepsPerDegree));
    label.SetCaption(DegreesText(angle));
}

void LimitAngle(ScrollBar& bar, const AngleLimits& limits) {
    bar.SetMin(NearestInt(limits.smallest * kStepsPerDegree));
    bar.SetMax(NearestInt(limits.largest * kStepsPerDegree));
}

void ShowAngles(const Adjustments& adjustments) {
    AdjustForm& form = *frmAdjust;
    const AngleLimits limits = AcceptedAngleRange(adjustments.options.highLatitude);
    LimitAngle(form.hsFajrAngle, limits);
    LimitAngle(form.hsIshaAngle, limits);
    RefuseMethodsOutside(limits);
    ShowAngle(form.hsFajrAngle, form.lblShownFajrAngle, adjustments.fajrAngle);
    ShowAngle(form.hsIshaAngle, form.lblShownIshaAngle, adjustments.ishaAngle);
    form.hsIshaAngle.SetEnabled(adjustments.options.ishaInterval == 0);
    form.cboMethod.SetListIndex(RowOf(adjustments));
}

void ShowMethodOptions(const YearOptions& options) {
    AdjustForm& form = *frmAdjust;
    form.hsIshaInterval.SetValue(options.ishaInterval);
    form.lblShownIshaInterval.SetCaption(
        IntervalText(options.ishaInterval, Word("ByAngle", "by its angle")));
    form.hsIshaRamadan.SetValue(options.ishaIntervalRamadan);
    form.lblShownIshaRamadan.SetCaption(
        IntervalText(options.ishaIntervalRamadan, Word("AsOtherwise", "as in other months")));
    ShowAngle(form.hsMaghribAngle, form.lblShownMaghribAngle, options.maghribAngle);
    if (options.maghribAngle == 0.0) {
        form.lblShownMaghribAngle.SetCaption(Word("AtSunset", "at sunset"));
    }
    form.chkSunOfTheDay.SetValue(options.sunOfTheDay ? 1 : 0);
    form.chkAroundTheDay.SetValue(options.aroundTheDay ? 1 : 0);
}

void ShowOffsets(const YearOptions& options) {
    for (std::size_t prayer = 0; prayer < kPrayerCount; ++prayer) {
        const int index = static_cast<int>(prayer);
        const int minutes = options.offsets[prayer];
        frmAdjust->hsOffset(index).SetValue(minutes);
        frmAdjust->lblShownOffset(index).SetCaption(MinutesText(SignedText(minutes)));
    }
}

void ShowRuleAndCalendar(const YearOptions& options) {
    AdjustForm& form = *frmAdjust;
    form.cboRule.SetListIndex(static_cast<int>(options.highLatitude));
    form.lblShownRule.SetCaption(RuleText(options.highLatitude));
    form.cboCalendar.SetListIndex(static_cast<int>(options.hijri));
    form.cboDays.SetListIndex(kNoDaysAdded + options.hijriAdjustment);
}

std::string HijriText(const HijriDate& date) {
    return HijriDateText(
        {std::to_string(date.day), HijriMonthOrDefault(date.month), std::to_string(date.year)});
}

std::string TimeText(const AdjustedDay& day, std::size_t prayer) {
    const bool comes = day.isCalculated && IsEvent(day.moments[prayer].hours);
    return comes ? MomentText(day.moments[prayer]) : "--";
}

void ShowToday(const Adjustments& adjustments) {
    AdjustForm& form = *frmAdjust;
    const AdjustedDay day = DayUnder(adjustments, Ports().clock.Today());
    for (std::size_t prayer = 0; prayer < kPrayerCount; ++prayer) {
        form.lblTime(static_cast<int>(prayer)).SetCaption(TimeText(day, prayer));
    }
    form.lblShownNote.SetCaption(day.isCalculated
                                     ? RuleNote(day.moments, adjustments.options.highLatitude)
                                     : Word("Impossible",
                                            "With these values the year cannot be calculated. "
                                            "Choose a rule for high latitudes or smaller "
                                            "angles."));
    form.lblShownHijri.SetCaption(HijriText(day.hijri));
}

}  // namespace

void FillAdjustmentLists() {
    AdjustForm& form = *frmAdjust;
    form.cboMethod.Clear();
    form.cboMethod.AddItem(Word("Custom", "custom"));
    for (const Authority* method : ListedMethods()) {
        form.cboMethod.AddItem(NameInList(*method));
    }
    form.cboRule.Clear();
    for (const HighLatitudeRule rule : kRules) {
        form.cboRule.AddItem(RuleName(rule));
    }
    form.cboCalendar.Clear();
    form.cboCalendar.AddItem(Word("Arithmetic", "arithmetic"));
    form.cboCalendar.AddItem(Word("UmmAlQura", "Umm al-Qura"));
}

const Authority* MethodInRow(int row) {
    return row > 0 ? ListedMethods().at(static_cast<std::size_t>(row - 1)) : nullptr;
}

void ShowAdjustments(const Adjustments& adjustments) {
    ShowAngles(adjustments);
    ShowMethodOptions(adjustments.options);
    ShowOffsets(adjustments.options);
    ShowRuleAndCalendar(adjustments.options);
    ShowToday(adjustments);
}

}  // namespace horavex
