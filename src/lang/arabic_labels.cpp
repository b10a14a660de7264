#include "lang/arabic_labels.h"

#include <string>
#include <vector>

#include "base/fault.h"
#include "base/text.h"
#include "windows/horavex_main_form.h"

namespace horavex {

namespace {

/// The words around a coordinate.
struct CoordinateWords {
    const char* caption;
    const char* hemisphere;  // the English one that takes same, in small letters
    const char* same;
    const char* opposite;
};

constexpr CoordinateWords kLatitude = {"د.عرض: ", "north", " شمال", " جنوب"};
constexpr CoordinateWords kLongitude = {"خ.طول: ", "east", " شرق", " غرب"};

// Words 1, 3 and 5 of "Latitude: 30 degrees, 3 minutes North". Only the English hemisphere is
// known, so that a caption made in another language of the text table always takes the opposite.
std::string InArabic(const std::string& caption, const CoordinateWords& words) {
    const std::vector<std::string> parts = Split(caption, ' ');
    if (parts.size() < 6) {
        throw BoundsFault("\"" + caption + "\" is no coordinate");
    }
    const bool same = AsciiLower(parts[5]) == words.hemisphere;
    return words.caption + parts[1] + " درجة " + parts[3] + " دقيقة " +
           (same ? words.same : words.opposite);
}

void RewriteCoordinate(Label& label, const CoordinateWords& words) {
    label.SetTag(label.Caption());
    label.SetCaption(InArabic(label.Caption(), words));
}

void RewriteZones(Label& label) {
    const std::string caption = label.Caption();
    const std::size_t bracket = caption.find('(');
    label.SetTag(caption);
    label.SetCaption("المنطقة الزمنية " +
                     (bracket == std::string::npos ? std::string() : caption.substr(bracket)));
}

}  // namespace

void Translate() {
    RewriteCoordinate(HoravexMainForm->lblLocationLat, kLatitude);
    RewriteCoordinate(HoravexMainForm->lblLocationLon, kLongitude);
    RewriteZones(HoravexMainForm->lblTimeZone);
}

}  // namespace horavex
