#pragma once

#include <string>
#include <vector>

namespace horavex {

/// The whole content of a source file. Throws FileFault.
std::string ReadText(const std::string& path);

/// The lines of a source file, the heading included, without their ends. Throws FileFault, and
/// TypeMismatchFault for a file without any.
std::vector<std::string> ReadLines(const std::string& path);

/// One row of a tab-separated source.
std::vector<std::string> SplitTabs(const std::string& line);

/// The rows of comma-separated text (RFC 4180: quoted fields, doubled quotes, line ends inside
/// quotes), the heading included. Throws FileFault, and TypeMismatchFault for a file without any,
/// for an open quote and for one that closes inside a field.
using CsvRow = std::vector<std::string>;
std::vector<CsvRow> ReadCsv(const std::string& path);

/// A whole number of a source. Throws TypeMismatchFault, naming the text.
int WholeNumber(const std::string& text);

}  // namespace horavex
