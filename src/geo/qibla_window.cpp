#include "geo/qibla_window.h"

#include <string>

#include "base/fault.h"
#include "base/text.h"
#include "engine/angle.h"
#include "engine/solar_event.h"
#include "forms/show_modal.h"
#include "geo/qibla.h"
#include "geo/qibla_compass.h"
#include "geo/sun_bearing.h"
#include "geo/world_map.h"
#include "lang/form_language.h"
#include "lang/language_pack.h"
#include "platform/platform.h"
#include "store/settings_record.h"
#include "store/text_table.h"
#include "windows/f_qibla.h"
#include "windows/frm_main.h"

namespace horavex {

namespace {

// Goes by the places of the words of "Qibla: 136 degrees, 8 minutes East of North" and by the
// English names of the directions: a sentence in another language always takes "east" and "south".
std::string InArabic(const std::string& sentence) {
    const auto words = Split(sentence, ' ');
    if (words.size() < 8) {
        throw BoundsFault("\"" + sentence + "\" is no bearing");
    }
    const bool west = AsciiLower(words[5]) == "west";
    const bool north = AsciiLower(words[7]) == "north";
    return "القبلة: " + words[1] + " درجة و " + words[3] + " دقيقة الى " +
           (west ? "الغرب" : "الشرق") + " من " + (north ? "الشمال" : "الجنوب");
}

std::string ShownSentence() {
    return AsciiLower(currentLanguage) == "arabic" ? InArabic(QiblaText) : QiblaText;
}

void ShowTexts() {
    QiblaForm& form = *fQibla;
    form.SetCaption("Horavex Prayer Time Software ");
    form.lblNorth.SetCaption(TextItem(12, ActiveSettings.Language));
    form.lblEast.SetCaption(TextItem(13, ActiveSettings.Language));
    form.lblSouth.SetCaption(TextItem(14, ActiveSettings.Language));
    form.lblWest.SetCaption(TextItem(15, ActiveSettings.Language));
    form.lblQibla.SetCaption(ShownSentence());
}

void DrawMap() {
    Picture& map = fQibla->picMap;
    map.drawing = WorldMap(map.ScaleWidth(), map.ScaleHeight(),
                           {RadToDeg(LatitudeRad), -RadToDeg(LongitudeWestRad)});
    map.Refresh();
}

void fQibla_Load() {
    TranslateOnLoad(*fQibla);
    ShowTexts();
    fQibla->lblSun.SetVisible(SunBearing(Ports().clock.Now()).has_value());
    DrawMap();
}

void fQibla_Paint() {
    fQibla->drawing = QiblaCompass(fQibla->ScaleWidth(), fQibla->ScaleHeight(), QiblaRad,
                                   SunBearing(Ports().clock.Now()));
}

}  // namespace

void ShowQibla() {
    fQibla->onLoad = fQibla_Load;
    fQibla->onPaint = fQibla_Paint;
    ShowModalOrUnload(*fQibla, &*frmMain);
}

}  // namespace horavex
