#include "desktop/face/face_day.h"

#include "lang/language_pack.h"
#include "shell/face_words.h"

namespace horavex {

namespace {

QString Text(const std::string& text) {
    return QString::fromStdString(text);
}

}  // namespace

FaceDay FaceDayOf(const DayView& day) {
    const FaceWords words = FaceWordsOf(day);
    FaceDay face;
    for (const ToldPrayer& prayer : words.prayers) {
        face.rows.push_back({Text(prayer.name), Text(prayer.time)});
        face.cells.push_back({Text(prayer.name), Text(prayer.cell)});
        face.iqamas.push_back(Text(prayer.iqama));
        face.arc.push_back(prayer.part);
    }
    face.next = words.next;
    if (!words.tomorrow.empty()) {
        face.rows.at(face.next).name = Text(words.tomorrow);
    }
    face.countdownWords = Text(words.countdownWords);
    face.seconds = words.seconds;
    face.clock = Text(words.clock);
    face.place = Text(words.place);
    face.clocks = Text(words.clocks);
    face.iqama = Text(words.iqama);
    face.timesNote = Text(words.timesNote);
    face.sky = words.sky;
    return face;
}

QString DesktopWord(const char* key) {
    return Text(GetLangString("desktop", key, key));
}

}  // namespace horavex
