#include "ctl/csv_record.h"
#include "fuzz/input.h"
#include "fuzz/target.h"
#include "fuzz/targets/targets.h"

namespace horavex {

namespace {

std::string LineOf(const std::vector<std::string>& fields) {
    std::string line;
    for (const std::string& field : fields) {
        line += (&field == &fields.front() ? "" : ",") + CsvField(field);
    }
    return line;
}

}  // namespace

void FuzzCsv(ByteView bytes) {
    const CsvRecord read = ReadCsvRecord(StringOf(bytes));
    if (read.state == CsvState::kWhole) {
        const CsvRecord again = ReadCsvRecord(LineOf(read.fields));
        Require(again.state == CsvState::kWhole, "what is written is whole");
        Require(again.fields == read.fields, "fields that are written are read");
    }
}

}  // namespace horavex
