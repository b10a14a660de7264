// Compiles data/texts/texts.csv into the text table: T.DAT and TI.DAT.
// Arguments: the source, the folder of the data files.

#include <iostream>

#include "base/fault.h"
#include "lib/data_writer.h"
#include "lib/text_source.h"
#include "store/text_table.h"

namespace {

using namespace horavex;

constexpr std::int64_t kLargestPosition = 32767;
constexpr std::size_t kFirstText = 2;  // behind number and name

void CheckRow(const CsvRow& row, std::size_t entry) {
    if (row.size() != kFirstText + kTextLanguages || row[0] != std::to_string(entry)) {
        throw TypeMismatchFault("row " + std::to_string(entry) +
                                " wants its number, its name and six texts");
    }
}

void Build(char** arguments) {
    const auto rows = ReadCsv(arguments[0]);
    TextPacker texts(kLargestPosition);
    Bytes index;
    for (std::size_t entry = 1; entry < rows.size(); ++entry) {
        CheckRow(rows[entry], entry);
        for (std::int16_t language = 1; language <= kTextLanguages; ++language) {
            const std::string& text =
                rows[entry][kFirstText + static_cast<std::size_t>(language) - 1];
            AppendInt16(index, texts.Add(text, TextColumnCodePage(language)));
        }
    }
    WriteDataFile(arguments[1], "T.DAT", texts.Packed());
    WriteDataFile(arguments[1], "TI.DAT", index);
    std::cout << rows.size() - 1 << " texts, " << texts.Packed().size() << " bytes\n";
}

}  // namespace

int main(int argumentCount, char** arguments) {
    return RunTool("build_texts", argumentCount, 2, Build, arguments);
}
