#pragma once

#include <functional>
#include <map>
#include <string>

#include "base/date.h"
#include "calendar/hijri_calendar.h"
#include "platform/face.h"
#include "shell/face_words.h"

namespace horavex {

/// A face that keeps what it is told; a sheet shows it.
class TerminalFace : public Face {
public:
    void LoadMovie(int, const std::string&) override { loaded_ = true; }
    void SetVariable(const std::string& name, const std::string& value) override;
    void ShowDay(const DayView& day) override;
    void Play() override {}
    void Place(double, double) override {}

    /// A variable as it was told, or the other text.
    std::string Value(const std::string& name, const std::string& otherwise = {}) const;

    /// No prayers before the first day.
    const FaceWords& Day() const { return day_; }
    const std::string& DayTitle() const { return dayTitle_; }
    const std::string& HijriText() const { return hijriText_; }
    double QiblaDegrees() const { return qiblaDegrees_; }

    /// Passes a command of the user on.
    void Tell(const char* command) const;

    /// Something of it has changed.
    std::function<void()> onChange = [] {};

private:
    void NameDates(const DayView& day);

    bool loaded_ = false;
    std::map<std::string, std::string> values_;
    FaceWords day_;
    /// What the dates were named for.
    struct NamedDates {
        std::string language;
        Date date = 0.0;
        HijriDate hijri{};

        bool operator==(const NamedDates&) const = default;
    };
    NamedDates named_;
    std::string dayTitle_;
    std::string hijriText_;
    double qiblaDegrees_ = 0.0;  // from north, positive to the east
};

}  // namespace horavex
