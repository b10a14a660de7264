#pragma once

#include <memory>
#include <string>

#include "ctl/exported_year.h"
#include "ctl/line_calls.h"

namespace horavex {

/// How the years of many lines are to come out.
struct YearsForm {
    FileForm file;       // "jsonl" beside the formats of files
    std::string folder;  // one file for each line there; empty for one stream of records
    bool resume = false;
};

inline constexpr const char* kJsonLines = "jsonl";

/// The head of a stream of records; empty for JSON lines.
std::string HeadOfRecords(const std::string& format);

/// The work of one process: a packed request in, the packed answer out. Each line stands by itself:
/// nothing of the place before is left.
class LineWork {
public:
    /// Session and calls outlive the work.
    LineWork(Session& session, const YearsForm& form, LineCalls& calls)
        : session_(session), form_(form), calls_(calls) {}

    std::string Answer(const std::string& request);

private:
    std::string RecordOf(const std::string& number, bool isThere, const NamedCall& named);
    void TakeCall(const YearCall& call);
    void WriteFile(const std::string& number, const NamedCall& named);

    Session& session_;
    const YearsForm& form_;
    LineCalls& calls_;
};

}  // namespace horavex
