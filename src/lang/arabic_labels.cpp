#include "lang/arabic_labels.h"

#include <string>
#include <vector>

#include "base/text.h"
#include "windows/horavex_main_form.h"

namespace horavex {

namespace {

struct Hemisphere {
    const char* english;
    const char* arabic;
};

/// What stands before a coordinate, and its two hemispheres: English in small letters.
struct CoordinateWords {
    const char* caption;
    Hemisphere hemispheres[2];
};

constexpr CoordinateWords kLatitude = {"د.عرض: ", {{"north", " شمال"}, {"south", " جنوب"}}};
constexpr CoordinateWords kLongitude = {"خ.طول: ", {{"east", " شرق"}, {"west", " غرب"}}};

// Words 1, 3 and 5 of "Latitude: 30 degrees, 3 minutes North". A coordinate whose hemisphere does
// not stand there in English, because the text table speaks another language, stays as it is.
std::string InArabic(const std::string& caption, const CoordinateWords& words) {
    const std::vector<std::string> parts = Split(caption, ' ');
    for (const Hemisphere& hemisphere : words.hemispheres) {
        if (parts.size() > 5 && AsciiLower(parts[5]) == hemisphere.english) {
            return words.caption + parts[1] + " درجة " + parts[3] + " دقيقة " + hemisphere.arabic;
        }
    }
    return caption;
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
