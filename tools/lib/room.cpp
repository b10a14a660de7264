#include "lib/room.h"

#include <algorithm>
#include <array>
#include <cmath>

namespace horavex {

namespace {

constexpr double kWet = 0.15;           // of the room against the sound itself
constexpr double kBeforeFirst = 0.022;  // seconds until the walls answer
constexpr double kDecay = 2.3;          // seconds until a sound has died to a thousandth
constexpr double kBrightness = 3800.0;  // hertz; what is higher dies sooner
constexpr double kRumble = 140.0;       // hertz; the walls take what is lower

// J.-M. Jot and A. Chaigne, "Digital delay networks for designing artificial reverberators", 1991:
// lines of lengths without a common divisor, in moments, each fed by all.
constexpr std::size_t kLines = 8;
constexpr std::array<std::size_t, kLines> kLengths = {1367, 1559, 1777, 2011,
                                                      2273, 2503, 2789, 3137};
// All-passes before them make single echoes a mist.
constexpr std::array<std::size_t, 3> kMist = {113, 337, 523};
constexpr double kMistGain = 0.6;

class Line {
public:
    explicit Line(std::size_t length) : held_(length, 0.0) {}

    double Oldest() const { return held_[at_]; }

    void Push(double value) {
        held_[at_] = value;
        at_ = (at_ + 1) % held_.size();
    }

private:
    Sound held_;
    std::size_t at_ = 0;
};

class AllPass {
public:
    explicit AllPass(std::size_t length) : line_(length) {}

    double operator()(double in) {
        const double held = line_.Oldest();
        const double inner = in - kMistGain * held;
        line_.Push(inner);
        return held + kMistGain * inner;
    }

private:
    Line line_;
};

/// What one side hears of the sound before the walls do.
class Entrance {
public:
    explicit Entrance(std::size_t spread) : before_(MomentsIn(kBeforeFirst) + spread) {
        for (const std::size_t length : kMist) {
            mist_.emplace_back(length + spread);
        }
    }

    double operator()(double in) {
        double value = before_.Oldest();
        before_.Push(in);
        value -= rumble_(value);
        for (AllPass& pass : mist_) {
            value = pass(value);
        }
        return value;
    }

private:
    Line before_;
    Softener rumble_{kRumble};
    std::vector<AllPass> mist_;
};

using Answers = std::array<double, kLines>;

/// Hadamard's matrix: every line feeds every other and no energy is won.
void MixAll(Answers& values) {
    for (std::size_t half = 1; half < kLines; half *= 2) {
        for (std::size_t i = 0; i < kLines; ++i) {
            if ((i & half) == 0) {
                const double a = values[i];
                const double b = values[i + half];
                values[i] = a + b;
                values[i + half] = a - b;
            }
        }
    }
    for (double& value : values) {
        value /= std::sqrt(static_cast<double>(kLines));
    }
}

class Walls {
public:
    Walls() {
        for (const std::size_t length : kLengths) {
            lines_.emplace_back(length);
            soft_.emplace_back(kBrightness);
            loss_.push_back(std::pow(0.001, static_cast<double>(length) / kPlayedRate / kDecay));
        }
    }

    /// Takes a moment of both sides in; even lines answer the left, odd ones the right.
    std::pair<double, double> operator()(double left, double right) {
        Answers answers{};
        std::pair<double, double> heard{};
        for (std::size_t i = 0; i < kLines; ++i) {
            answers[i] = loss_[i] * soft_[i](lines_[i].Oldest());
            (i % 2 == 0 ? heard.first : heard.second) += answers[i];
        }
        MixAll(answers);
        for (std::size_t i = 0; i < kLines; ++i) {
            lines_[i].Push(answers[i] + (i % 2 == 0 ? left : right));
        }
        return heard;
    }

private:
    std::vector<Line> lines_;
    std::vector<Softener> soft_;
    std::vector<double> loss_;
};

}  // namespace

StereoSound PlayInRoom(const StereoSound& dry, double tail) {
    StereoSound sound = dry;
    sound.left.resize(dry.left.size() + MomentsIn(tail), 0.0);
    sound.right.resize(sound.left.size(), 0.0);
    Entrance left(0), right(17);
    Walls walls;
    for (std::size_t i = 0; i < sound.left.size(); ++i) {
        const auto [answerLeft, answerRight] = walls(left(sound.left[i]), right(sound.right[i]));
        sound.left[i] += kWet * answerLeft;
        sound.right[i] += kWet * answerRight;
    }
    return sound;
}

}  // namespace horavex
