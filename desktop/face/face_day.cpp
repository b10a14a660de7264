#include "desktop/face/face_day.h"

#include "desktop/user_text.h"
#include "lang/language_pack.h"
#include "shell/face_words.h"

namespace horavex {

FaceDay FaceDayOf(const DayView& day) {
    const FaceWords words = FaceWordsOf(day);
    FaceDay face;
    for (const ToldPrayer& prayer : words.prayers) {
        face.rows.push_back({UserText(prayer.name), UserText(prayer.time)});
        face.cells.push_back({UserText(prayer.name), UserText(prayer.cell)});
        face.iqamas.push_back(UserText(prayer.iqama));
        face.arc.push_back(prayer.part);
    }
    face.next = words.next;
    if (!words.tomorrow.empty()) {
        face.rows.at(face.next).name = UserText(words.tomorrow);
    }
    face.countdownWords = UserText(words.countdownWords);
    face.seconds = words.seconds;
    face.clock = UserText(words.clock);
    face.place = UserText(words.place);
    face.clocks = UserText(words.clocks);
    face.iqama = UserText(words.iqama);
    face.timesNote = UserText(words.timesNote);
    face.sky = words.sky;
    return face;
}

QString DesktopWord(const char* key) {
    return UserText(GetLangString("desktop", key, key));
}

}  // namespace horavex
