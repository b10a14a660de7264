// Compiles data/angles.csv into the bands of depression angles: A.dat.
// Arguments: the source, the folder of the data files.

#include <iostream>

#include "base/fault.h"
#include "lib/data_writer.h"
#include "lib/text_source.h"
#include "store/indexed_file.h"

namespace {

using namespace horavex;

constexpr std::size_t kColumns = 4;  // limit, largest, default, smallest

void CheckRow(const CsvRow& row) {
    if (row.size() != kColumns) {
        throw TypeMismatchFault("a row of angles wants a limit and three angles");
    }
    for (std::size_t i = 1; i < kColumns; ++i) {
        const int angle = WholeNumber(row[i]);
        if (angle < 1 || angle > 60 || (i > 1 && angle > WholeNumber(row[i - 1]))) {
            throw BoundsFault("angles run from 60 down to 1, the largest first");
        }
    }
}

void AppendBand(Bytes& file, const CsvRow& row) {
    AppendInt16(file, WholeNumber(row[0]));
    Bytes angles;
    for (std::size_t i = 1; i < kColumns; ++i) {
        angles.push_back(static_cast<std::uint8_t>(WholeNumber(row[i])));
    }
    const Bytes stored = DecodeText(angles);  // its own inverse
    file.insert(file.end(), stored.begin(), stored.end());
}

void Build(char** arguments) {
    const auto rows = ReadCsv(arguments[0]);
    if (rows.size() < 2) {
        throw BoundsFault("there is no band");
    }
    Bytes file;
    for (std::size_t i = 1; i < rows.size(); ++i) {
        CheckRow(rows[i]);
        if (i > 1 && WholeNumber(rows[i][0]) <= WholeNumber(rows[i - 1][0])) {
            throw BoundsFault("the limits of the bands rise from row to row");
        }
        AppendBand(file, rows[i]);
    }
    WriteDataFile(arguments[1], "A.dat", file);
    std::cout << rows.size() - 1 << " bands\n";
}

}  // namespace

int main(int argumentCount, char** arguments) {
    return RunTool("build_angles", argumentCount, 2, Build, arguments);
}
