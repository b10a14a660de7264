#include <CLI/CLI.hpp>

#include "base/fault.h"
#include "calendar/date_entry.h"
#include "ctl/date_option.h"
#include "fuzz/input.h"
#include "fuzz/target.h"
#include "fuzz/targets/targets.h"
#include "support/data_folder.h"
#include "support/test_platform.h"

namespace horavex {

namespace {

void ReadOption(const std::string& text) {
    for (const auto parse : {ParseDateOption, ParseCivilDateOption}) {
        try {
            parse(text);
        } catch (const CLI::ParseError&) {
            // Refused.
        }
    }
    try {
        ParseMomentOption(text);
    } catch (const CLI::ParseError&) {
        // Refused.
    }
}

}  // namespace

void FuzzDates(ByteView bytes) {
    FuzzInput input(bytes);
    TestPlatform platform;
    DataFolder(platform.files).WriteHijriYear(1448, 46188);
    const std::int16_t year = input.TakeInt16();
    const int month = input.TakeByte();
    const int day = input.TakeByte();
    for (const Conversion conversion : {Conversion::kToHijri, Conversion::kToGregorian}) {
        RunStep([&] { ConvertDateEntry(conversion, year, month, day); });
    }
    const std::string text = input.TakeRest();
    Require(!IsDateText(text) || ReadDateText(text), "the text of a date has its numbers");
    ReadOption(text);
}

}  // namespace horavex
