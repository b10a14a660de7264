#include <cmath>

#include "base/number_text.h"
#include "config/authorities.h"
#include "ctl/command.h"
#include "timetables/timetable.h"

namespace horavex {

namespace {

Json OffsetsJson(const Margins& margins) {
    Json offsets = Json::object();
    for (std::size_t prayer = 0; prayer < kPrayerCount; ++prayer) {
        offsets[kPrayerKeys[prayer]] = margins[prayer];
    }
    return offsets;
}

Json AuthorityJson(const Authority& authority) {
    return {{"key", authority.key},
            {"name", authority.name},
            {"fajrAngle", authority.fajrAngle},
            {"ishaAngle", authority.ishaInterval == 0 ? Json(authority.ishaAngle) : Json()},
            {"ishaInterval", authority.ishaInterval},
            {"ishaIntervalRamadan", authority.ishaIntervalRamadan},
            {"maghribAngle", authority.maghribAngle},
            {"offsets", OffsetsJson(authority.margins)},
            {"asrRatio", authority.asrRatio},
            {"countries", CountriesOf(authority)},
            {"source", authority.source}};
}

std::string Minutes(int minutes) {
    return std::to_string(minutes) + " min";
}

std::string IshaText(const Authority& authority) {
    if (authority.ishaInterval == 0) {
        return NumberToText(authority.ishaAngle) + "°";
    }
    return Minutes(authority.ishaInterval) +
           (authority.ishaIntervalRamadan == authority.ishaInterval
                ? ""
                : " (Ramadan " + Minutes(authority.ishaIntervalRamadan) + ")");
}

std::string MarginsText(const Margins& margins) {
    std::string text;
    for (std::size_t prayer = 0; prayer < kPrayerCount; ++prayer) {
        if (margins[prayer] != 0) {
            text += std::string(", ") + kPrayerKeys[prayer] + (margins[prayer] > 0 ? " +" : " -") +
                    Minutes(std::abs(margins[prayer]));
        }
    }
    return text;
}

std::string FiguresText(const Authority& authority) {
    return "Fajr " + NumberToText(authority.fajrAngle) + "°, Isha " + IshaText(authority) +
           (authority.maghribAngle == 0.0
                ? ""
                : ", Maghrib " + NumberToText(authority.maghribAngle) + "°") +
           (authority.asrRatio == 0.0 ? "" : ", Asr ratio " + NumberToText(authority.asrRatio)) +
           MarginsText(authority.margins);
}

std::string CountriesText(const Authority& authority) {
    std::string text;
    for (const std::string& country : CountriesOf(authority)) {
        text += (text.empty() ? "" : ", ") + country;
    }
    return text;
}

std::string AuthorityText(const Authority& authority) {
    const std::string countries = CountriesText(authority);
    return std::string(authority.key) + "\t" + authority.name + "\n\t" + FiguresText(authority) +
           "\n" + (countries.empty() ? "" : "\tusual in " + countries + "\n") + "\t" +
           authority.source + "\n";
}

void PrintMethods(const Session& session) {
    Json array = Json::array();
    std::string text;
    for (const Authority& authority : Authorities()) {
        array.push_back(AuthorityJson(authority));
        text += AuthorityText(authority);
    }
    session.Print(array, text);
}

}  // namespace

void AddMethodsCommand(CLI::App& app, Session& session) {
    AddCommand(app, session, "methods", "Methods of authorities, with their sources")
        ->callback([&session] { PrintMethods(session); });
}

}  // namespace horavex
