#include <memory>

#include "base/int16.h"
#include "calendar/hijri_converter.h"
#include "ctl/command.h"
#include "ctl/date_option.h"
#include "lang/language_pack.h"
#include "store/stored_values.h"

namespace horavex {

namespace {

constexpr int kLastYear = 9999;

void Print(const Session& session, int day, int month, int year, const std::string& text) {
    session.Print({{"day", day}, {"month", month}, {"year", year}, {"text", text}}, text + "\n");
}

void PrintHijri(const Session& session, const std::string& date) {
    const DateNumbers from = ParseCivilDateOption(date);
    const HijriConverter converter;
    const HijriDate hijri = converter.ToHijri(DateSerial(from.year, from.month, from.day));
    currentLanguage = ReadStoredLanguage();
    Print(session, hijri.day, hijri.month, hijri.year,
          converter.CalculateHijri(ToInt16(from.year), from.month, from.day));
}

bool IsPlausible(const DateNumbers& hijri) {
    return hijri.year >= 1 && hijri.year <= kLastYear && hijri.month >= 1 && hijri.month <= 12 &&
           hijri.day >= 1;
}

void PrintGregorian(const Session& session, const std::string& date) {
    const DateNumbers from = ParseDateOption(date);
    if (!IsPlausible(from)) {
        RefuseDate(date);
    }
    const HijriConverter converter;
    const HijriDate hijri{from.year, from.month, from.day};
    const Date day = converter.ToGregorian(hijri);
    if (converter.ToHijri(day) != hijri) {
        RefuseDate(date);
    }
    const CivilDate civil = CivilFromDate(day);
    Print(session, civil.day, civil.month, civil.year,
          converter.CalculateGregorian(ToInt16(from.year), from.month, from.day));
}

/// A subcommand that takes a date and prints it in the other calendar.
void AddConversion(CLI::App& app, Session& session, const char* name, const char* description,
                   void (*print)(const Session& session, const std::string& date)) {
    auto* command = AddCommand(app, session, name, description);
    auto date = std::make_shared<std::string>();
    AddDateOption(*command, *date);
    command->callback([&session, date, print] { print(session, *date); });
}

}  // namespace

void AddCalendarCommands(CLI::App& app, Session& session) {
    AddConversion(app, session, "hijri", "The Hijri date of a Gregorian day", PrintHijri);
    AddConversion(app, session, "gregorian", "The Gregorian date of a Hijri day", PrintGregorian);
}

}  // namespace horavex
