#include "geo/qibla.h"

#include <cstdlib>

#include "base/program_state.h"
#include "engine/angle.h"
#include "engine/place.h"
#include "store/settings_record.h"
#include "store/text_table.h"

namespace horavex {

double QiblaRad = 0.0;
double QiblaDegrees = 0.0;
std::string QiblaText;

namespace {

const ProgramStateReset reset([] {
    QiblaRad = QiblaDegrees = 0.0;
    QiblaText.clear();
});

std::string BearingSentence(double degrees, std::int16_t language) {
    const auto text = [language](TextEntry entry) { return TextItem(entry, language); };
    const DegreesMinutes split = SplitDegrees(degrees);
    return text(TextEntry::kQibla) + ": " + std::to_string(std::abs(split.whole)) + " " +
           text(TextEntry::kDegrees) + ", " + std::to_string(split.minutes) + " " +
           text(TextEntry::kMinutes) + " " +
           text(degrees < 0.0 ? TextEntry::kWest : TextEntry::kEast) + " " + text(TextEntry::kOf) +
           " " + text(TextEntry::kNorth);
}

}  // namespace

// Both methods that the settings offer are this great circle; the option is kept and has no
// effect on the number.
void ComputeQibla() {
    if (Settings.QiblaMethod == 1 || Settings.QiblaMethod == 2) {
        QiblaRad = BearingOfMecca(LatitudeRad, LongitudeWestRad);
        QiblaDegrees = RadToDeg(QiblaRad);
    }
    QiblaText = BearingSentence(QiblaDegrees, ActiveSettings.Language);
}

}  // namespace horavex
