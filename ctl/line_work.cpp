#include "ctl/line_work.h"

#include <iostream>
#include <sstream>

#include "ctl/calculation.h"
#include "ctl/line_answer.h"
#include "ctl/safe_name.h"
#include "ctl/year_json.h"
#include "engine/angle.h"
#include "engine/year_table.h"
#include "store/location_record.h"
#include "timetables/csv_timetable.h"

namespace horavex {

namespace {

constexpr const char* kRecordThere = "+";  // stands for one that nobody writes

/// What comes to standard error while it lives.
class Overheard {
public:
    Overheard() : former_(std::cerr.rdbuf(told_.rdbuf())) {}
    ~Overheard() { std::cerr.rdbuf(former_); }
    Overheard(const Overheard&) = delete;
    Overheard& operator=(const Overheard&) = delete;

    std::string Text() const { return told_.str(); }

private:
    std::ostringstream told_;
    std::streambuf* former_;
};

/// "Cairo", or "51.5_-0.12" where no city is named.
std::string NameOfPlace() {
    const CityRecord& city = Location.City;
    return city.Name.empty() ? PlainNumber(StoredCoord(city.Latitude)) + "_" +
                                   PlainNumber(StoredCoord(city.Longitude))
                             : city.Name;
}

std::string RecordText(const std::string& format, const std::string& number) {
    return format == kJsonLines ? YearJson() + "\n" : CsvDays(TakeTimetable(), true, number + ",");
}

}  // namespace

std::string HeadOfRecords(const std::string& format) {
    return format == kJsonLines ? std::string() : "Line," + CsvHead(true);
}

std::string LineWork::Answer(const std::string& request) {
    const LineRequest line = UnpackedRequest(request);
    const Overheard overheard;
    try {
        return WithMemoryFaults([&] {
            session_.status = kDone;
            const std::string record = RecordOf(line.number, line.isThere, calls_.Read(line.text));
            return PackedAnswer(session_.status == kDone ? LineEnd::kWhole : LineEnd::kWithoutTable,
                                overheard.Text(), record);
        });
    } catch (const std::exception& fault) {
        return PackedAnswer(LineEnd::kRefused, overheard.Text() + fault.what(), "");
    }
}

std::string LineWork::RecordOf(const std::string& number, bool isThere, const NamedCall& named) {
    ForgetPlace();
    Times = {};
    TakeCall(named.call);
    if (!form_.folder.empty()) {
        WriteFile(number, named);
        return {};
    }
    Calculate(session_, named.call.year);
    if (session_.status != kDone && form_.file.format != kJsonLines) {
        return {};  // there is no table
    }
    return isThere ? kRecordThere : RecordText(form_.file.format, number);
}

void LineWork::TakeCall(const YearCall& call) {
    if (form_.file.format == kJsonLines) {
        TakeYearCall(call);
    } else {
        TakeExportCall(session_, call, form_.file);
    }
}

void LineWork::WriteFile(const std::string& number, const NamedCall& named) {
    const std::string name = named.name.empty() ? NameOfPlace() : named.name;
    const std::string suffix = form_.file.format == "text" ? "txt" : form_.file.format;
    const std::string path = form_.folder + "/" + NumberedName(number, name) + "." + suffix;
    if (form_.resume && session_.platform.files.Exists(path)) {
        return;
    }
    Calculate(session_, named.call.year);
    if (session_.status == kDone) {
        WriteYearFile(path, form_.file);
    }
}

}  // namespace horavex
