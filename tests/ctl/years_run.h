#pragma once

#include <filesystem>
#include <fstream>
#include <string>
#include <vector>

#include "ctl/ctl_json.h"
#include "support/build_folder.h"

namespace horavex {

/// A home folder with a file of places, over which `years` runs.
class YearsRun {
public:
    /// The places, in a file.
    void Write(const std::string& places, const std::string& name = "places") const {
        std::ofstream(ctl / name, std::ios::binary) << places;
    }

    /// `years` over that file, with more words behind.
    ProgramRun Run(const std::string& rest = "") const {
        return ctl.Run("years --from " + (ctl / "places") + (rest.empty() ? "" : " " + rest));
    }

    /// The standard output of a run with an end that is told.
    std::string Printed(const std::string& rest = "", int status = 0) const {
        const ProgramRun run = Run(rest);
        EXPECT_EQ(run.status, status) << run.err;
        return run.out;
    }

    /// A line of a shell in the home folder, in which $ctl is the program.
    ProgramRun Shell(const std::string& line) const {
        return RunCommand({"/bin/bash", "-c",
                           "cd \"$HOME\" && ctl=" + BuildPath("bin/horavexctl") + " && " + line},
                          ctl.variables);
    }

    std::string Content(const std::string& name) const { return ContentOf(ctl / name); }

    Ctl ctl;
};

/// What `year` prints of a call.
inline std::string YearOf(const Ctl& ctl, const std::vector<std::string>& words) {
    return ctl.Run("year --json", words).out;
}

/// Places of all kinds: cities by name and number, points, methods and rules by hand, a southern
/// summer, a zone beyond 12 hours, polar nights, the interval of Ramadan, a year that gives up.
inline constexpr const char* kPlaces =
    "name,city,city-index,near,latitude,longitude,zone,time-zone,fajr,isha,asr,method,"
    "high-latitude,isha-interval,maghrib-angle,offset,dst-start,dst-end,hijri,year\n"
    ",Cairo,,,,,,,,,,,,,,,,,,2026\n"
    ",,5183,,,,,,,,,,,,,,,,,2026\n"
    "Point,,,,30.05,31.25,2,,19.5,17.5,1,,,,,,,,,2001\n"
    ",Oslo,,,,,,,,,,,,,,,,,,2028\n"
    "Gives up,,,,60,10,1,,18,18,1,,,,,,,,,2026\n"
    "Same again,,,,30.05,31.25,2,,19.5,17.5,1,,,,,,,,,2001\n"
    ",,,\"51.5,-0.12\",,,,,,,,isna,,,,,,,,2026\n"
    "West,,,,30.05,-90.5,-6,,15,15,2,,,,,,80,300,,2026\n"
    "No days,,,,30.05,31.25,2,,19.5,17.5,1,,,,,,,,,2026\n"
    ",Sydney,,,,,,,,,,,,,,,,,,2026\n"
    ",\"Apia, Samoa\",,,,,,,,,,,,,,,,,,2026\n"
    ",Longyearbyen,,,,,,,,,,,nearest,,,,,,,2026\n"
    ",Murmansk,,,,,,,,,,,angle,,,,,,,2026\n"
    ",Mecca,,,,,,,,,,umm-al-qura,,,,,,,,2026\n"
    ",Riyadh,,,,,,,,,,,,80,,,,,,2026\n"
    ",Tehran,,,,,,,,,,tehran,,,4,,,,,2026\n"
    ",London,,,,,,,12,12,2,,none,,,,,,,2026\n"
    ",Jakarta,,,,,9,,,,,,,,,\"fajr=2,isha=-3\",,,,2026\n"
    ",Paris,,,,,,Asia/Kolkata,,,,,,,,,,,umm-al-qura,2026\n"
    ",Casablanca,,,,,,,,,,,,,,,,,,1900\n"
    ",Kathmandu,,,,,,,,,,,,,,,,,,9999\n";

}  // namespace horavex
