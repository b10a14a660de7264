#include "geo/distance_window.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <optional>

#include "base/number_text.h"
#include "base/program_state.h"
#include "base/script.h"
#include "engine/angle.h"
#include "forms/show_modal.h"
#include "geo/city_picker.h"
#include "geo/distance.h"
#include "lang/filled_text.h"
#include "lang/form_language.h"
#include "lang/language_pack.h"
#include "lang/pack_number.h"
#include "platform/platform.h"
#include "store/distance_options.h"
#include "store/location_record.h"
#include "store/location_text.h"
#include "store/settings_record.h"
#include "windows/frm_distance.h"
#include "windows/frm_main.h"

namespace horavex {

namespace {

constexpr const char* kFillAll = "Please, Fill in all text boxes with valid values.";
constexpr const char* kEmptyField = "Form field is empty!";

/// The column of the text table whose words are read back.
constexpr std::int16_t kEnglishTexts = 1;

std::string summaryPattern;  // of the language, while the window is open
const ProgramStateReset reset([] { summaryPattern.clear(); });

/// One coordinate in the window. Its sign lies in all three boxes.
struct CoordinateControls {
    std::array<TextBox*, 3> boxes;  // degrees, minutes, seconds
    OptionButton* positive;         // north or east
    OptionButton* negative;
    const char* key;  // of the message for an empty box; nullptr where no pack has it
    const char* english;
};

/// In the order in which the boxes are checked.
std::array<CoordinateControls, 4> Coordinates() {
    DistanceForm& f = *frmDistance;
    return {{{{&f.txtDegALong, &f.txtMinALong, &f.txtSecALong},
              &f.CityAEast,
              &f.CityAWest,
              "13",
              "Please fill in City A's Longitude"},
             {{&f.txtDegALat, &f.txtMinALat, &f.txtSecALat},
              &f.CityANorth,
              &f.CityASouth,
              "15",
              "Please fill in City A's Latitude"},
             {{&f.txtDegBLong, &f.txtMinBLong, &f.txtSecBLong},
              &f.CityBEast,
              &f.CityBWest,
              nullptr,
              "Please fill in City B's Longitude"},
             {{&f.txtDegBLat, &f.txtMinBLat, &f.txtSecBLat},
              &f.CityBNorth,
              &f.CityBSouth,
              nullptr,
              "Please fill in City B's Latitude"}}};
}

enum CoordinateIndex : std::size_t { kLongitudeA, kLatitudeA, kLongitudeB, kLatitudeB };

std::string NumberInBox(double number) {
    return NumberToText(number, Ports().formats.DecimalMark());
}

bool AreNumbers(const CoordinateControls& coordinate) {
    return std::ranges::all_of(coordinate.boxes,
                               [](const TextBox* box) { return IsNumeric(box->Text()); });
}

bool HasHemisphere(const CoordinateControls& coordinate) {
    return coordinate.positive->Value() || coordinate.negative->Value();
}

/// The option of a hemisphere puts its sign into the boxes, or refuses to be set.
void TakeHemisphere(const CoordinateControls& coordinate, OptionButton& option) {
    if (!AreNumbers(coordinate)) {
        const std::string text = coordinate.key == nullptr
                                     ? coordinate.english
                                     : GetLangString("msg", coordinate.key, coordinate.english);
        Ports().dialogs.ShowMessage(text, GetLangString("msg", "14", kEmptyField),
                                    MessageIcon::kNone);
        option.SetValue(false);
        return;
    }
    const double sign = &option == coordinate.positive ? 1.0 : -1.0;
    for (TextBox* box : coordinate.boxes) {
        box->SetText(NumberInBox(sign * std::fabs(TextToNumber(box->Text()))));
    }
}

void TakeChosenHemisphere(const CoordinateControls& coordinate) {
    TakeHemisphere(coordinate,
                   coordinate.positive->Value() ? *coordinate.positive : *coordinate.negative);
}

void ShowCoordinate(const CoordinateControls& coordinate, const CoordinateTexts& texts) {
    coordinate.boxes[0]->SetText(texts.degrees);
    coordinate.boxes[1]->SetText(texts.minutes);
    coordinate.boxes[2]->SetText(texts.seconds);
}

void EmptyBoxes() {
    for (const CoordinateControls& coordinate : Coordinates()) {
        ShowCoordinate(coordinate, {});
    }
}

void RefuseBoxes() {
    Ports().dialogs.ShowMessage(GetLangString("msg", "24", kFillAll),
                                GetLangString("msg", "14", kEmptyField), MessageIcon::kExclamation);
}

void RefuseUnit() {
    Ports().dialogs.ShowMessage(
        GetLangString("msg", "16",
                      "Please choose the correct out type metrics (Kilometers, Miles or Nautical "
                      "Miles!"),
        GetLangString("msg", "17", "Form field not checked!"), MessageIcon::kNone);
}

bool HasEmptyBox(const CoordinateControls& coordinate) {
    return std::ranges::any_of(coordinate.boxes,
                               [](const TextBox* box) { return box->Text().empty(); });
}

std::optional<DistanceUnit> ChosenUnit() {
    const DistanceForm& form = *frmDistance;
    if (form.optKilometers.Value()) {
        return DistanceUnit::kKilometres;
    }
    if (form.optMiles.Value()) {
        return DistanceUnit::kMiles;
    }
    return form.optNauticalMiles.Value() ? std::optional(DistanceUnit::kNauticalMiles)
                                         : std::nullopt;
}

/// The unit, or nothing after a message. What is looked at first is complained of first.
std::optional<DistanceUnit> CheckedUnit() {
    const auto coordinates = Coordinates();
    if (std::ranges::any_of(coordinates, HasEmptyBox) ||
        !std::ranges::all_of(coordinates, HasHemisphere)) {
        RefuseBoxes();
        return std::nullopt;
    }
    const auto unit = ChosenUnit();
    if (!unit) {
        RefuseUnit();
        return std::nullopt;
    }
    if (!std::ranges::all_of(coordinates, AreNumbers)) {
        RefuseBoxes();
        return std::nullopt;
    }
    return unit;
}

double ReadBoxes(const CoordinateControls& coordinate) {
    return ReadCoordinate(
        {coordinate.boxes[0]->Text(), coordinate.boxes[1]->Text(), coordinate.boxes[2]->Text()});
}

DistancePoints PointsInBoxes() {
    const auto coordinates = Coordinates();
    return {.DistanceLatA = ReadBoxes(coordinates[kLatitudeA]),
            .DistanceLonA = ReadBoxes(coordinates[kLongitudeA]),
            .DistanceLatB = ReadBoxes(coordinates[kLatitudeB]),
            .DistanceLonB = ReadBoxes(coordinates[kLongitudeB])};
}

/// As it is written inside a sentence.
std::string UnitInLine(DistanceUnit unit) {
    switch (unit) {
        case DistanceUnit::kMiles:
            return GetLangString("distance", "Miles", "miles");
        case DistanceUnit::kNauticalMiles:
            return GetLangString("distance", "NauticalMiles", "nautical miles");
        case DistanceUnit::kKilometres:
            break;
    }
    return GetLangString("distance", "Kilometres", "kilometers");
}

std::string DegreesAndMinutes(double degrees) {
    constexpr int kMinutes = 60;
    constexpr int kCircle = 360 * kMinutes;
    const int minutes = static_cast<int>(std::lround(degrees * kMinutes)) % kCircle;
    const std::string odd = std::to_string(minutes % kMinutes);
    return std::to_string(minutes / kMinutes) + "\u00b0" + (odd.size() < 2 ? "0" : "") + odd +
           "\u2032";
}

/// The distance as one says it, with the direction of the way, below the number of many digits.
void ShowSummary(double distance, DistanceUnit unit) {
    std::string text =
        FilledText(summaryPattern, "{distance}", PackWholeNumber(std::lround(distance)));
    text = FilledText(text, "{unit}", UnitInLine(unit));
    const std::string bearing = DegreesAndMinutes(BearingDegrees(PointsInBoxes()));
    frmDistance->lblSummary.SetCaption(
        FilledText(text, "{bearing}", KeptTogether(bearing, summaryPattern)));
}

void cmdCalcDistance_Click() {
    const auto unit = CheckedUnit();
    if (!unit) {
        return;
    }
    // Whatever was typed since, the signs agree with the options again.
    std::ranges::for_each(Coordinates(), TakeChosenHemisphere);
    const double kilometres = DistanceKilometres(PointsInBoxes());
    frmDistance->txtDistanceRsult.SetText(NumberInBox(InUnit(kilometres, *unit)));
    frmDistance->metricsLabel.SetCaption(UnitName(*unit));
    ShowSummary(InUnit(kilometres, *unit), *unit);
}

/// Mecca's place is known.
void EnableCityB(bool enabled) {
    DistanceForm& form = *frmDistance;
    for (Control* control : std::initializer_list<Control*>{
             &form.cmdCityB, &form.txtDegBLong, &form.txtMinBLong, &form.txtSecBLong,
             &form.txtDegBLat, &form.txtMinBLat, &form.txtSecBLat, &form.CityBEast, &form.CityBWest,
             &form.CityBNorth, &form.CityBSouth}) {
        control->SetEnabled(enabled);
    }
    form.lblCityB.SetVisible(enabled);
    form.lblMecca.SetVisible(!enabled);
}

void OptionTwoCities_Click() {
    EnableCityB(true);
    EmptyBoxes();
}

void OptionDistanceToMecca_Click() {
    const auto coordinates = Coordinates();
    ShowCoordinate(coordinates[kLongitudeB], kMeccaLongitudeTexts);
    ShowCoordinate(coordinates[kLatitudeB], kMeccaLatitudeTexts);
    frmDistance->CityBEast.SetValue(true);
    frmDistance->CityBNorth.SetValue(true);
    EnableCityB(false);
}

void NameNoCity() {
    DistanceForm& form = *frmDistance;
    form.lblCityA.SetCaption(GetLangString("frmDistance", "lblCityA", "City A is here"));
    form.lblCityB.SetCaption(GetLangString("frmDistance", "lblCityB", "City B is here"));
}

void cmdDistanceClear_Click() {
    DistanceForm& form = *frmDistance;
    EmptyBoxes();
    EnableCityB(true);
    form.lblSummary.SetCaption("");
    form.txtDistanceRsult.SetText("");
    form.OptionDistanceToMecca.SetValue(false);
    form.OptionTwoCities.SetValue(true);
    NameNoCity();
}

void PickCity(DistanceCity city) {
    PickCityForDistance(*frmDistance, [city](const CityPick& pick) {
        const CityRecord& picked = pick.PickLocation.City;
        FillPickedCity(city, pick.PickCityText,
                       FormatLatitude(StoredCoord(picked.Latitude), Settings.Language),
                       FormatLongitude(StoredCoord(picked.Longitude), Settings.Language));
    });
}

/// The accepted city stands as the first one.
void BeginHere() {
    FillPickedCity(DistanceCity::kA, ActiveCityText,
                   FormatLatitude(StoredCoord(ActiveLocation.City.Latitude), kEnglishTexts),
                   FormatLongitude(StoredCoord(ActiveLocation.City.Longitude), kEnglishTexts));
    frmDistance->optKilometers.SetValue(true);
}

void frmDistance_Load() {
    TranslateOnLoad(*frmDistance);
    frmDistance->metricsLabel.SetCaption("");  // until there is a distance
    summaryPattern = frmDistance->lblSummary.Caption();
    frmDistance->lblSummary.SetCaption("");
    if (ReadOption(option::kDistanceFromHere) != 0) {
        BeginHere();
    }
}

void BindHemispheres() {
    for (const CoordinateControls& coordinate : Coordinates()) {
        for (OptionButton* option : {coordinate.positive, coordinate.negative}) {
            option->onClick = [coordinate, option] { TakeHemisphere(coordinate, *option); };
        }
    }
}

void Bind() {
    DistanceForm& form = *frmDistance;
    form.onLoad = frmDistance_Load;
    form.OptionTwoCities.onClick = OptionTwoCities_Click;
    form.OptionDistanceToMecca.onClick = OptionDistanceToMecca_Click;
    form.cmdCityA.onClick = [] { PickCity(DistanceCity::kA); };
    form.cmdCityB.onClick = [] { PickCity(DistanceCity::kB); };
    form.cmdCalcDistance.onClick = cmdCalcDistance_Click;
    form.cmdDistanceClear.onClick = cmdDistanceClear_Click;
    BindHemispheres();
}

CoordinateTexts TextsOf(const CoordinateFields& fields) {
    return {std::to_string(fields.degrees), std::to_string(fields.minutes),
            std::to_string(fields.seconds)};
}

// The sign goes into the boxes even where the option is set already.
void FillCoordinate(const CoordinateControls& coordinate, const std::string& text) {
    const CoordinateFields fields = ParseCoordinates(text);
    ShowCoordinate(coordinate, TextsOf(fields));
    if (fields.hemisphere.empty()) {
        return;
    }
    const bool positive = fields.hemisphere == "east" || fields.hemisphere == "north";
    OptionButton& option = positive ? *coordinate.positive : *coordinate.negative;
    option.SetValue(true);
    TakeHemisphere(coordinate, option);
}

}  // namespace

void ShowDistance() {
    Bind();
    ShowModalOrUnload(*frmDistance, &*frmMain);
}

void FillPickedCity(DistanceCity city, const std::string& name, const std::string& latitude,
                    const std::string& longitude) {
    const auto coordinates = Coordinates();
    const bool isA = city == DistanceCity::kA;
    (isA ? frmDistance->lblCityA : frmDistance->lblCityB).SetCaption(name);
    FillCoordinate(coordinates[isA ? kLongitudeA : kLongitudeB], longitude);
    FillCoordinate(coordinates[isA ? kLatitudeA : kLatitudeB], latitude);
}

}  // namespace horavex
