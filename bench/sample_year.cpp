#include "sample_year.h"

#include "engine/angle.h"
#include "engine/current_year.h"
#include "engine/ruled_year.h"
#include "engine/year_table.h"
#include "geo/qibla.h"
#include "platform/platform.h"
#include "store/location_record.h"
#include "store/settings_record.h"
#include "timetables/text_export.h"

namespace horavex::bench {

namespace {

/// Keeps what is written.
class TextSink : public OutputFile {
public:
    void Append(ByteView bytes) override { text += StringOf(bytes); }
    void Commit() override {}

    std::string text;
};

}  // namespace

YearInputs MeccaIn2026() {
    return {2026,
            {DegToRad(21.43), -DegToRad(39.83), 3.0},
            {18.5, 19.0, 1.0, 0, 0, 0},
            YearStart::kRounded};
}

void TakeMeccaIn2026() {
    ActiveLocation.City.Latitude = 2143;
    ActiveLocation.City.Longitude = 3983;
    ActiveCityText = "Mecca, Mecca - Saudi Arabia";
    ActiveSettings.Language = 1;
    ActiveSettings.QiblaMethod = 1;
    ActiveSettings.TimeZone = 3.0;
    QiblaText = "Qibla: 136 degrees, 8 minutes East of North";
    CurrentYear = 2026;
    LeapYearFlag();
    Times = CalculateYear(MeccaIn2026()).times;
}

std::string TextPages() {
    TextSink sink;
    WriteTextPages(sink, [] { return false; });
    return std::move(sink.text);
}

}  // namespace horavex::bench
