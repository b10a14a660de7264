#include "geo/qibla_window.h"

#include <algorithm>
#include <cmath>
#include <iterator>
#include <string>
#include <string_view>

#include "base/program_version.h"
#include "base/text.h"
#include "engine/angle.h"
#include "engine/place.h"
#include "forms/show_modal.h"
#include "geo/distance.h"
#include "geo/qibla.h"
#include "geo/qibla_compass.h"
#include "geo/sun_bearing.h"
#include "geo/world_map.h"
#include "lang/filled_text.h"
#include "lang/form_language.h"
#include "lang/language_pack.h"
#include "lang/pack_number.h"
#include "platform/platform.h"
#include "store/settings_record.h"
#include "store/text_table.h"
#include "windows/f_qibla.h"
#include "windows/frm_main.h"

namespace horavex {

namespace {

struct DirectionNames {
    std::string_view english;  // in small letters
    TextEntry entry;           // its names in the other columns of the text table
    const char* arabic;
};

constexpr DirectionNames kSides[] = {{"east", TextEntry::kEast, "الشرق"},
                                     {"west", TextEntry::kWest, "الغرب"}};
constexpr DirectionNames kPoles[] = {{"north", TextEntry::kNorth, "الشمال"},
                                     {"south", TextEntry::kSouth, "الجنوب"}};

/// Nothing for a word that is none of the two.
const char* ArabicName(const DirectionNames (&names)[2], const std::string& word) {
    const auto* found = std::ranges::find_if(names, [&word](const DirectionNames& direction) {
        return AsciiLower(word) == direction.english ||
               word == TextItem(direction.entry, ActiveSettings.Language);
    });
    return found == std::end(names) ? nullptr : found->arabic;
}

// Goes by the places of the words of "Qibla: 136 degrees, 8 minutes East of North". A sentence
// without a known direction there stays as it is.
std::string InArabic(const std::string& sentence) {
    const auto words = Split(sentence, ' ');
    const char* side = words.size() > 7 ? ArabicName(kSides, words[5]) : nullptr;
    const char* pole = words.size() > 7 ? ArabicName(kPoles, words[7]) : nullptr;
    if (side == nullptr || pole == nullptr) {
        return sentence;
    }
    return "القبلة: " + words[1] + " درجة و " + words[3] + " دقيقة الى " + side + " من " + pole;
}

std::string ShownSentence() {
    return IsArabicPack() ? InArabic(QiblaText) : QiblaText;
}

void ShowTexts() {
    QiblaForm& form = *fQibla;
    form.SetCaption(kSoftwareTitle);
    form.lblNorth.SetCaption(TextItem(TextEntry::kNorth, ActiveSettings.Language));
    form.lblEast.SetCaption(TextItem(TextEntry::kEast, ActiveSettings.Language));
    form.lblSouth.SetCaption(TextItem(TextEntry::kSouth, ActiveSettings.Language));
    form.lblWest.SetCaption(TextItem(TextEntry::kWest, ActiveSettings.Language));
    form.lblQibla.SetCaption(ShownSentence());
}

GeoPoint YearPlace() {
    return {RadToDeg(LatitudeRad), -RadToDeg(LongitudeWestRad)};
}

double KilometresToMecca(const GeoPoint& place) {
    return DistanceKilometres({place.latitude, place.longitude, ReadCoordinate(kMeccaLatitudeTexts),
                               ReadCoordinate(kMeccaLongitudeTexts)});
}

void ShowPlace() {
    Label& distance = fQibla->lblDistance;
    fQibla->lblShownPlace.SetCaption(YearCityText);
    distance.SetCaption(FilledText(distance.Caption(), "{km}",
                                   PackWholeNumber(std::lround(KilometresToMecca(YearPlace())))));
}

void DrawMap() {
    Picture& map = fQibla->picMap;
    map.drawing = WorldMap(map.ScaleWidth(), map.ScaleHeight(), YearPlace());
    map.Refresh();
}

void fQibla_Load() {
    TranslateOnLoad(*fQibla);
    ShowTexts();
    ShowPlace();
    fQibla->lblSun.SetVisible(SunBearing(Ports().clock.Now()).has_value());
    DrawMap();
}

void fQibla_Paint() {
    fQibla->drawing = QiblaCompass(fQibla->ScaleWidth(), fQibla->ScaleHeight(), QiblaRad,
                                   SunBearing(Ports().clock.Now()));
}

}  // namespace

void Qibla() {
    ComputeQibla();
    frmMain->lblQibla.SetCaption(QiblaText);
}

void ShowQibla() {
    fQibla->onLoad = fQibla_Load;
    fQibla->onPaint = fQibla_Paint;
    fQibla->cmdClose.onClick = [] { fQibla->Unload(); };
    ShowModalOrUnload(*fQibla, &*frmMain);
}

}  // namespace horavex
