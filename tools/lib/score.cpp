#include "lib/score.h"

#include <algorithm>
#include <cmath>
#include <map>
#include <sstream>

#include "base/fault.h"
#include "lib/ornaments.h"
#include "lib/text_source.h"

namespace horavex {

namespace {

constexpr double kCentsPerOctave = 1200.0;

const std::map<std::string, Instrument> kInstruments = {
    {"flute", Instrument::kFlute}, {"oud", Instrument::kOud},     {"santur", Instrument::kSantur},
    {"bell", Instrument::kBell},   {"choir", Instrument::kChoir}, {"drone", Instrument::kDrone}};

/// Strengths by the signs of musicians.
const std::map<std::string, double> kStrengths = {{"pp", 0.25},           {"p", 0.4},  {"mp", 0.55},
                                                  {"mf", kUsualStrength}, {"f", 0.85}, {"ff", 1.0}};

[[noreturn]] void Refuse(const std::string& what) {
    throw TypeMismatchFault(what);
}

double Number(std::istream& in, const std::string& what) {
    double value = 0.0;
    if (!(in >> value)) {
        Refuse(what + " wants a number");
    }
    return value;
}

double Positive(std::istream& in, const std::string& what) {
    const double value = Number(in, what);
    if (value <= 0.0) {
        Refuse(what + " is more than 0");
    }
    return value;
}

class ScoreReader {
public:
    void ReadLine(const std::string& line) {
        std::istringstream in(line.substr(0, line.find('#')));
        std::string word;
        if (!(in >> word)) {
            return;
        }
        if (word == "tonic") {
            tonic_ = Positive(in, word);
        } else if (word == "beat") {
            beat_ = Positive(in, word);
        } else if (word == "tail") {
            score_.tail = Positive(in, word);
        } else if (word == "scale") {
            ReadScale(in);
        } else if (word == "voice") {
            ReadVoice(in);
        } else {
            do {
                ReadMusic(word);
            } while (in >> word);
        }
    }

    Score Finish() {
        if (LengthOf(score_) == 0.0) {
            Refuse("there is no note");
        }
        return std::move(score_);
    }

private:
    void ReadScale(std::istream& in) {
        scale_.clear();
        for (double cents = 0.0; in >> cents;) {
            scale_.push_back(cents);
        }
        if (scale_.empty() || !in.eof()) {
            Refuse("scale wants the cents of its degrees");
        }
    }

    void ReadVoice(std::istream& in) {
        std::string name;
        in >> name;
        const auto instrument = kInstruments.find(name);
        if (instrument == kInstruments.end()) {
            Refuse("there is no instrument \"" + name + "\"");
        }
        const double loudness = Positive(in, "loudness");
        if (loudness > 1.0) {
            Refuse("loudness is 1 at most");
        }
        score_.voices.push_back({instrument->second, loudness, ReadPlace(in), {}});
        now_ = 0.0;
        strength_ = kUsualStrength;
    }

    static double ReadPlace(std::istream& in) {
        if ((in >> std::ws).eof()) {
            return 0.0;
        }
        const double place = Number(in, "the place of a voice");
        if (std::abs(place) > 1.0) {
            Refuse("the place of a voice is from -1 to 1");
        }
        return place;
    }

    void ReadMusic(const std::string& word) {
        if (score_.voices.empty()) {
            Refuse("\"" + word + "\" comes before any voice");
        }
        const auto strength = kStrengths.find(word);
        if (strength != kStrengths.end()) {
            strength_ = strength->second;
        } else {
            ReadNote(word);
        }
    }

    /// "5:1.5" is the fifth degree for a beat and a half, "-:1" a rest.
    void ReadNote(const std::string& word) {
        if (tonic_ == 0.0 || beat_ == 0.0 || scale_.empty()) {
            Refuse("notes want a tonic, a beat and a scale before them");
        }
        const std::size_t colon = word.find(':');
        if (colon == std::string::npos) {
            Refuse("\"" + word + "\" is no note");
        }
        std::istringstream beats(word.substr(colon + 1));
        const double length = Positive(beats, "the length of \"" + word + "\"") * beat_;
        const std::string degree = word.substr(0, colon);
        if (degree != "-") {
            const std::vector<Note> notes = ReadDegree(degree, length);
            std::vector<Note>& all = score_.voices.back().notes;
            all.insert(all.end(), notes.begin(), notes.end());
        }
        now_ += length;
    }

    /// "5" plain, "5~" with a trill, "5*" with a tremolo, "6'5" with a grace note, "3>5" by a
    /// slide.
    std::vector<Note> ReadDegree(const std::string& degree, double length) const {
        const std::size_t sign = degree.find_first_of("~*'>");
        const std::string first = degree.substr(0, sign);
        if (sign == std::string::npos) {
            return {NoteOf(first, length)};
        }
        const std::string second = degree.substr(sign + 1);
        if (degree[sign] == '~' || degree[sign] == '*') {
            return ReadStrokes(degree[sign], first, second, length);
        }
        Note note = NoteOf(second, length);
        if (degree[sign] == '\'') {
            return WithGrace(note, PitchOf(first));
        }
        note.from = PitchOf(first);
        return {note};
    }

    std::vector<Note> ReadStrokes(char sign, const std::string& degree, const std::string& behind,
                                  double length) const {
        if (!behind.empty()) {
            Refuse("nothing may follow \"" + degree + sign + "\" but its length");
        }
        const Note note = NoteOf(degree, length);
        return sign == '*' ? Tremolo(note) : Trill(note, PitchOf(WholeNumber(degree) + 1));
    }

    Note NoteOf(const std::string& degree, double length) const {
        const double pitch = PitchOf(degree);
        return {now_, length, pitch, pitch, strength_};
    }

    double PitchOf(const std::string& degree) const { return PitchOf(WholeNumber(degree)); }

    /// Degree 1 is the tonic; the scale goes on above and below it.
    double PitchOf(int degree) const {
        const int size = static_cast<int>(scale_.size());
        const int steps = degree - 1;
        const int octave = steps >= 0 ? steps / size : -((-steps + size - 1) / size);
        const double cents =
            scale_[static_cast<std::size_t>(steps - octave * size)] + octave * kCentsPerOctave;
        return tonic_ * std::exp2(cents / kCentsPerOctave);
    }

    Score score_;
    double tonic_ = 0.0;  // hertz of degree 1; 0 before it is told
    double beat_ = 0.0;   // seconds, likewise
    std::vector<double> scale_;
    double now_ = 0.0;  // where the next note of the voice begins
    double strength_ = kUsualStrength;
};

}  // namespace

Score ReadScore(const std::string& path) {
    ScoreReader reader;
    int number = 0;
    try {
        for (const std::string& line : ReadLines(path)) {
            ++number;
            reader.ReadLine(line);
        }
        return reader.Finish();
    } catch (const TypeMismatchFault& fault) {
        throw TypeMismatchFault(path + ":" + std::to_string(number) + ": " + fault.what());
    }
}

double LengthOf(const Score& score) {
    double end = 0.0;
    for (const Voice& voice : score.voices) {
        for (const Note& note : voice.notes) {
            end = std::max(end, note.start + note.length);
        }
    }
    return end;
}

}  // namespace horavex
