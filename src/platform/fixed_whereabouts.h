#pragma once

#include <utility>

#include "platform/whereabouts.h"

namespace horavex {

/// What a test says. Without anything said it is the port of a front end that does not know where
/// it is.
class FixedWhereabouts : public Whereabouts {
public:
    std::vector<std::string> zoneNames;
    std::string country;
    bool canLocate = false;

    std::vector<std::string> ZoneNames() const override { return zoneNames; }
    std::string Country() const override { return country; }
    bool CanLocate() const override { return canLocate; }
    void Locate(Answer answer) override { answer_ = std::move(answer); }
    void StopLocating() override { answer_ = nullptr; }

    /// True while a question is open.
    bool IsAsked() const { return answer_ != nullptr; }

    /// Answers the question that is open.
    void Tell(const std::optional<EarthPosition>& point) { std::exchange(answer_, nullptr)(point); }

private:
    Answer answer_;
};

}  // namespace horavex
