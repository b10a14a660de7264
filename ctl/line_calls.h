#pragma once

#include <optional>
#include <string>
#include <vector>

#include "ctl/year_call.h"

namespace horavex {

/// A year to calculate, and what the user calls its place.
struct NamedCall {
    YearCall call;
    std::string name;  // empty where the line has none
};

/// Reads lines as calls of `year`: what a line names are the options of that command, without their
/// hyphens, and "name".
class LineCalls {
public:
    /// columns: the head of CSV; none for JSON lines. year: that of lines without one. Refuses the
    /// usage for a column that is no option.
    LineCalls(std::vector<std::string> columns, std::optional<int> year);
    LineCalls(const LineCalls&) = delete;
    LineCalls& operator=(const LineCalls&) = delete;

    /// Refuses the usage for a line that is none, and for what `year` refuses.
    NamedCall Read(const std::string& line);

private:
    struct Field {
        std::string name;
        std::string value;  // empty counts as none
    };
    using Fields = std::vector<Field>;

    Fields FieldsOf(const std::string& line) const;
    Fields CsvFieldsOf(const std::string& line) const;
    void RequireKnown(const std::string& name) const;
    std::vector<std::string> WordsOf(const Fields& fields) const;

    std::vector<std::string> columns_;
    std::optional<int> year_;
    YearCall call_;
    CLI::App options_;
};

}  // namespace horavex
