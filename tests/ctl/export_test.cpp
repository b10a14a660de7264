#include <sys/stat.h>
#include <sys/sysmacros.h>

#include <filesystem>

#include "base/text.h"
#include "ctl/ctl_json.h"
#include "support/build_folder.h"
#include "timetables/timetable.h"

namespace horavex {
namespace {

namespace fs = std::filesystem;
using testing::ElementsAre;
using testing::HasSubstr;
using testing::Not;
using testing::SizeIs;
using testing::StartsWith;

const Environment kTools = {{"PATH", "/usr/bin:/bin"}, {"LC_ALL", "C.UTF-8"}};

/// Cairo with a summer of daylight saving, as words of a call.
constexpr const char* kCairo =
    "--latitude 30.05 --longitude 31.25 --zone 2 --fajr 19.5 --isha 17.5 --asr 1 --dst-start 121 "
    "--dst-end 273 --year 2026";

class CtlExport : public testing::Test {
protected:
    std::string Export(const std::string& format, const std::string& more = "") const {
        const std::string file = ctl / ("year." + format);
        const std::string line = "export " + std::string(kCairo) + " --format " + format + more;
        const Json told = JsonOf(ctl, line, {"--output", file});
        EXPECT_THAT(KeysOf(told), ElementsAre("file", "days", "timeZone", "method",
                                              "highLatitudeRule", "moments"));
        EXPECT_EQ(told["file"], file);
        EXPECT_EQ(told["days"], 365);
        return file;
    }

    std::string Exported(const std::string& format, const std::string& more = "") const {
        return ContentOf(Export(format, more));
    }

    ProgramRun To(const std::string& format, const std::string& output) const {
        return ctl.Run("export " + std::string(kCairo) + " --format " + format,
                       {"--output", output});
    }

    Json Year() const { return JsonOf(ctl, "year " + std::string(kCairo))["times"]; }

    static std::string Tool(std::vector<std::string> words) {
        const ProgramRun run = RunCommand(words, kTools);
        EXPECT_EQ(run.status, 0) << words[0] << ": " << run.err;
        return run.out;
    }

    /// Where the first word of that text begins on the first page of a PDF, in points.
    static double LeftOf(const std::string& file, const std::string& word) {
        const std::string boxes = Tool({"pdftotext", "-bbox", "-l", "1", file, "-"});
        const std::size_t at = boxes.find(">" + word + "<");
        EXPECT_NE(at, std::string::npos) << word;
        const std::size_t left = boxes.rfind("xMin=\"", at);
        return std::strtod(boxes.c_str() + left + 6, nullptr);
    }

    const Ctl ctl;
};

TEST_F(CtlExport, JsonReadsBackToTheYearsTable) {
    const Json file = Json::parse(Exported("json"));
    const Json year = Year();
    EXPECT_EQ(file["latitude"], 30.05);
    ASSERT_EQ(file["days"].size(), 365U);
    for (std::size_t row = 0; row < 365; ++row) {
        EXPECT_EQ(file["days"][row]["hours"], year[row]) << row;
        EXPECT_EQ(file["days"][row]["daylight"], row >= 120 && row < 273) << row;
    }
    EXPECT_EQ(file["days"][324]["date"], "2026-11-21");
    EXPECT_EQ(file["days"][324]["hijri"], Json::parse(R"({"year":1448,"month":6,"day":10})"));
}

TEST_F(CtlExport, CsvHoldsTheMinutesOfTheYearsTable) {
    const auto lines = Split(Exported("csv"), '\n');
    const Json year = Year();
    ASSERT_THAT(lines, SizeIs(1 + 365 + 1));
    for (std::size_t row = 0; row < 365; ++row) {
        const auto fields = Split(lines[row + 1], ',');
        for (std::size_t prayer = 0; prayer < kPrayerCount; ++prayer) {
            const double hours = year[row][prayer].get<double>();
            EXPECT_EQ(fields[2 + prayer], IsoTime(MinuteOf(0.0, hours).minute)) << lines[row + 1];
        }
    }
}

TEST_F(CtlExport, IndependentParserReadsTheMomentsOutOfTheCalendar) {
    const std::string script = SourcePath("tests/ctl/read_calendar.py");
    const auto events = Split(Tool({"/usr/bin/python3", script, Export("ics")}), '\n');
    const Json year = Year();
    ASSERT_THAT(events, SizeIs(365 * 6 + 1));
    for (std::size_t row = 0; row < 365; ++row) {
        const Date day = DateSerial(2026, 1, 1) + static_cast<double>(row);
        const double offset = row >= 120 && row < 273 ? 3.0 : 2.0;
        for (std::size_t prayer = 0; prayer < kPrayerCount; ++prayer) {
            const DayMinute local = MinuteOf(day, year[row][prayer].get<double>());
            const DayMinute utc = MinuteOf(local.day, local.minute / 60.0 - offset);
            const std::string moment =
                IsoDate(CivilFromDate(utc.day)) + "T" + IsoTime(utc.minute) + ":00";
            const auto fields = Split(events[row * 6 + prayer], '\t');
            ASSERT_THAT(fields, SizeIs(4));
            EXPECT_EQ(fields[1], moment) << fields[0];
            EXPECT_EQ(fields[2], prayer == kShurooq ? "0" : "1");
            EXPECT_EQ(fields[3], kPrayerKeys[prayer]);
        }
    }
}

TEST_F(CtlExport, TextIsThePagesOfTheLinePrinter) {
    const auto pages = Split(Exported("text"), '\f');
    EXPECT_THAT(pages, SizeIs(12));
    EXPECT_THAT(pages.at(4), HasSubstr("Start of"));
    EXPECT_THAT(pages.at(8), HasSubstr("End of"));
}

TEST_F(CtlExport, TextSpeaksTheLanguageAskedFor) {
    const std::string page = Exported("text", " --language french");
    EXPECT_THAT(page, HasSubstr("Latitude: 30 degrés, 3 minutes Nord\r\n"));
    EXPECT_THAT(page, HasSubstr("Qibla: 136 degrés, 13 minutes Est du Nord (première méthode)"));
    EXPECT_THAT(page, HasSubstr("Fuseau horaire: GMT +2,00\r\n"));
    EXPECT_THAT(page, HasSubstr("Horaires de prière pour janvier 2026."));
    EXPECT_THAT(page, HasSubstr("   11:59   "));
    EXPECT_THAT(page, Not(HasSubstr("AM")));
    EXPECT_THAT(Exported("text", " --language Elvish"), HasSubstr("Time Zone: GMT +2.00\r\n"));
}

TEST_F(CtlExport, HtmlSpeaksTheLanguageAskedFor) {
    EXPECT_THAT(Exported("html", " --language Arabic"),
                StartsWith("<!DOCTYPE html>\n<html lang=\"ar\" dir=\"rtl\">"));
}

// Without the desktop there are no fonts, and the format is refused.
class CtlExportPdf : public CtlExport {
protected:
    void SetUp() override {
        const ProgramRun run =
            ctl.Run("export " + std::string(kCairo) + " --format pdf", {"--output", ctl / "x.pdf"});
        if (run.status == 1) {
            EXPECT_THAT(run.err, HasSubstr("comes with the desktop program"));
            GTEST_SKIP() << run.err;
        }
        EXPECT_EQ(run.err, "");
    }
};

TEST_F(CtlExportPdf, HasTwelvePagesOfEitherPaper) {
    const std::string a4 = Tool({"pdfinfo", Export("pdf")});
    EXPECT_THAT(a4, HasSubstr("Pages:           12"));
    EXPECT_THAT(a4, HasSubstr("(A4)"));
    EXPECT_THAT(Tool({"pdfinfo", Export("pdf", " --paper letter")}), HasSubstr("(letter)"));
}

TEST_F(CtlExportPdf, PageTellsPlaceMethodQiblaAndTheDaysInBothCalendars) {
    const std::string page =
        Tool({"pdftotext", "-layout", "-f", "5", "-l", "5", Export("pdf"), "-"});
    for (const char* text : {"Prayer times - May 2026", "Latitude: 30.05°", "Time zone: GMT +2.00",
                             "Fajr angle: 19.5°", "Isha angle: 17.5°", "Asr ratio: 1:1",
                             "Qibla, clockwise from north: 136.", "1 Friday *", "14 Zul Qaada 1447",
                             "* 1: Daylight saving begins on this day"}) {
        EXPECT_THAT(page, HasSubstr(text));
    }
}

TEST_F(CtlExportPdf, ArabicRunsFromRightToLeft) {
    const std::string english = Export("pdf");
    EXPECT_LT(LeftOf(english, "1447"), LeftOf(english, "12:08"));
    const std::string arabic = Export("pdf", " --language Arabic");
    EXPECT_GT(LeftOf(arabic, "1447"), LeftOf(arabic, "12:08"));
}

TEST_F(CtlExport, CalculationThatGivesUpWritesNoFile) {
    const std::string file = ctl / "year.csv";
    const Json told = JsonOf(ctl,
                             "export --latitude 51.5 --longitude 0 --zone 0 --fajr 18 --isha 17 "
                             "--year 2001 --format csv",
                             {"--output", file}, 1);
    EXPECT_TRUE(told["file"].is_null());
    EXPECT_EQ(told["days"], 0);
    EXPECT_TRUE(told["moments"].is_null());
    EXPECT_EQ(ContentOf(file), "");
}

TEST_F(CtlExport, MissingFolderIsRefusedAndNotMade) {
    for (const char* format : {"text", "csv", "html"}) {
        const ProgramRun run = To(format, ctl / "missing/year.txt");
        EXPECT_EQ(run.status, 1) << format;
        EXPECT_EQ(run.err,
                  "horavexctl: " + (ctl / "missing/year.txt") + ": No such file or directory\n");
        EXPECT_FALSE(fs::exists(ctl / "missing"));
    }
}

TEST_F(CtlExport, DashIsTheStandardOutputAndNothingElseGoesThere) {
    for (const char* format : {"text", "csv", "html"}) {
        const ProgramRun run = To(format, "-");
        EXPECT_EQ(run.status, 0);
        EXPECT_EQ(run.out, Exported(format)) << format;
        EXPECT_EQ(run.err, "");
    }
    const ProgramRun json =
        ctl.Run("export " + std::string(kCairo) + " --format csv --json", {"--output", "-"});
    EXPECT_EQ(json.status, 2);
    EXPECT_EQ(json.out, "");
}

TEST_F(CtlExport, PipeThatIsReadGetsTheTimetable) {
    // A link like /dev/stdout, which a program that goes wrong might replace.
    fs::create_symlink("/proc/self/fd/1", ctl / "link");
    const std::string command = BuildPath("bin/horavexctl") + " export " + kCairo +
                                " --format csv --output " + (ctl / "link") + " | cat";
    const ProgramRun run = RunCommand({"/bin/sh", "-c", command}, ctl.variables);
    EXPECT_EQ(run.out, Exported("csv") + (ctl / "link") + ": 365 days\n");
    EXPECT_TRUE(fs::is_symlink(ctl / "link"));
}

TEST_F(CtlExport, WhatIsNoFileIsRefusedAndStays) {
    ASSERT_EQ(::mkfifo((ctl / "pipe").c_str(), 0600), 0);
    fs::create_symlink("nothing", ctl / "link");
    fs::create_directory(ctl / "folder");
    for (const char* name : {"pipe", "link", "folder"}) {
        for (const char* format : {"text", "csv"}) {
            const ProgramRun run = To(format, ctl / name);
            EXPECT_EQ(run.status, 1) << name;
            EXPECT_THAT(run.err, StartsWith("horavexctl: " + (ctl / name) + ": "));
        }
    }
    EXPECT_TRUE(fs::is_fifo(ctl / "pipe"));
    EXPECT_TRUE(fs::is_symlink(ctl / "link"));
    EXPECT_TRUE(fs::is_empty(ctl / "folder"));
}

TEST_F(CtlExport, DeviceIsRefusedAndStays) {
    if (::mknod((ctl / "device").c_str(), S_IFCHR | 0600, makedev(1, 3)) != 0) {
        // Only root makes devices; anybody else can do no harm to one of the system.
        fs::create_symlink("/dev/null", ctl / "device");
    }
    for (const char* format : {"text", "csv"}) {
        const ProgramRun run = To(format, ctl / "device");
        EXPECT_EQ(run.status, 1);
        EXPECT_THAT(run.err, HasSubstr("is no regular file"));
    }
    EXPECT_TRUE(fs::is_character_file(ctl / "device"));
}

}  // namespace
}  // namespace horavex
