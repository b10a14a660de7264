#include "config/angle_controls.h"

#include <cmath>

#include "base/number_text.h"
#include "base/rounding.h"
#include "config/angle_range.h"
#include "config/working_options.h"
#include "platform/platform.h"
#include "store/text_table.h"

namespace horavex {

namespace {

constexpr double kQuarter = 0.25;  // degrees a step of the fine slider

std::string Refusal(std::int16_t language) {
    const AngleLimits range = AngleRange();
    return TextItem(TextEntry::kOutsideBand, language) + " " + std::to_string(range.smallest) +
           " - " + std::to_string(range.largest);
}

/// "Umm al-Qura (18.5°/17.5°)": Fajr and Isha.
std::string RowOf(const Method& method, std::int16_t language) {
    const char mark = Ports().formats.DecimalMark();
    return TextItem(method.name, language) + " (" + NumberToText(method.fajrAngle, mark) + "°/" +
           NumberToText(method.ishaAngle, mark) + "°)";
}

}  // namespace

double AngleOnSliders(const ScrollBar& whole, const Slider& quarters) {
    return whole.Value() + kQuarter * quarters.Value();
}

void MoveSliders(double angle, ScrollBar& whole, Slider& quarters) {
    // The degree above the range is its end and four quarters.
    const bool topmost = angle == whole.Max() + 1.0;
    const double floor = topmost ? whole.Max() : std::floor(angle);
    whole.SetValue(NearestInt(floor));
    quarters.SetValue(NearestInt(std::fabs(angle - floor) / kQuarter));
}

void FillMethodRows(ComboBox& list, std::int16_t language) {
    list.Clear();
    list.AddItem(TextItem(TextEntry::kCustom, language));
    const std::string refusal = Refusal(language);
    for (const Method& method : Methods()) {
        list.AddItem(RowOf(method, language));
        list.SetItemRefusal(list.ListCount() - 1, FitsBand(method) ? "" : refusal);
    }
}

int RowOfAngles(double fajrAngle, double ishaAngle) {
    int row = 1;
    for (const Method& method : Methods()) {
        if (method.fajrAngle == fajrAngle && method.ishaAngle == ishaAngle) {
            return row;
        }
        ++row;
    }
    return 0;
}

namespace {

/// Of the convention in a row, beside what the working options hold otherwise.
YearOptions OptionsOfRow(int row) {
    YearOptions options = WorkingRules();
    TakeAuthority(*Methods()[static_cast<std::size_t>(row - 1)].authority, options);
    return options;
}

/// What a method can ask beyond its two angles.
bool HoldsMoreThanAngles(const YearOptions& options) {
    const YearOptions none;
    return options.ishaInterval != none.ishaInterval ||
           options.ishaIntervalRamadan != none.ishaIntervalRamadan ||
           options.maghribAngle != none.maghribAngle || options.offsets != none.offsets;
}

}  // namespace

int RowInForce(int row) {
    const YearOptions options = WorkingRules();
    const bool isWhole = row == 0 || !HoldsMoreThanAngles(options) || OptionsOfRow(row) == options;
    return isWhole ? row : 0;
}

void TakeWholeMethod(int row) {
    if (OptionsAreChosen() || HoldsMoreThanAngles(WorkingRules())) {
        ChooseOptions(OptionsOfRow(row));
    }
}

bool IshaIsByAngle() {
    return WorkingRules().ishaInterval == 0;
}

}  // namespace horavex
