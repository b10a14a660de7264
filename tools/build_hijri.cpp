// Compiles data/umm_al_qura.csv into the table of published Hijri months: UQ.DAT.
// Arguments: the source, the folder of the data files.

#include <iostream>

#include "base/date.h"
#include "base/fault.h"
#include "base/text.h"
#include "lib/data_writer.h"
#include "lib/text_source.h"

namespace {

using namespace horavex;

constexpr std::size_t kMonths = 12;
constexpr std::size_t kColumns = 2 + kMonths;  // year, first day, days of each month
constexpr int kShortest = 28;                  // days; 1364 really had such a month
constexpr int kLongest = 30;

/// "2026-11-21".
int ReadDay(const std::string& text) {
    const auto parts = Split(text, '-');
    if (parts.size() != 3 ||
        !IsCivilDate(WholeNumber(parts[0]), WholeNumber(parts[1]), WholeNumber(parts[2]))) {
        throw TypeMismatchFault("\"" + text + "\" is no date");
    }
    return static_cast<int>(
        DateSerial(WholeNumber(parts[0]), WholeNumber(parts[1]), WholeNumber(parts[2])));
}

/// One year; where it ends comes back, the day behind it.
int AppendYear(Bytes& file, const CsvRow& row) {
    int day = ReadDay(row[1]);
    AppendInt16(file, WholeNumber(row[0]));
    AppendInt32(file, day);
    for (std::size_t month = 2; month < kColumns; ++month) {
        const int length = WholeNumber(row[month]);
        if (length < kShortest || length > kLongest) {
            throw BoundsFault("a month has " + std::to_string(kShortest) + " to " +
                              std::to_string(kLongest) + " days");
        }
        file.push_back(static_cast<std::uint8_t>(length));
        day += length;
    }
    return day;
}

void CheckRow(const std::vector<CsvRow>& rows, std::size_t i, int expectedDay) {
    if (rows[i].size() != kColumns) {
        throw TypeMismatchFault("a row wants a year, its first day and twelve months");
    }
    if (i > 1 && (WholeNumber(rows[i][0]) != WholeNumber(rows[i - 1][0]) + 1 ||
                  ReadDay(rows[i][1]) != expectedDay)) {
        throw BoundsFault("year " + rows[i][0] + " does not begin where the one before ends");
    }
}

void Build(char** arguments) {
    const auto rows = ReadCsv(arguments[0]);
    if (rows.size() < 2) {
        throw BoundsFault("there is no year");
    }
    Bytes file;
    int day = 0;
    for (std::size_t i = 1; i < rows.size(); ++i) {
        CheckRow(rows, i, day);
        day = AppendYear(file, rows[i]);
    }
    WriteDataFile(arguments[1], "UQ.DAT", file);
    std::cout << rows.size() - 1 << " years\n";
}

}  // namespace

int main(int argumentCount, char** arguments) {
    return RunTool("build_hijri", argumentCount, 2, Build, arguments);
}
