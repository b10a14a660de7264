#include "ctl/years_output.h"

#include <fstream>
#include <iostream>

namespace horavex {

namespace {

/// Calls take with every line that has its end, and where it begins.
template <class Take>
void ReadWholeLines(const std::string& path, Take take) {
    std::ifstream file(path, std::ios::binary);
    std::string line;
    std::int64_t begin = 0;
    while (std::getline(file, line) && !file.eof()) {
        take(begin, line);
        begin += std::ssize(line) + 1;
    }
}

}  // namespace

WholeRecords WholeJsonLines(const std::string& path) {
    WholeRecords whole;
    ReadWholeLines(path, [&](std::int64_t begin, const std::string& line) {
        whole = {begin + std::ssize(line) + 1, whole.count + 1};
    });
    return whole;
}

WholeRecords WholeCsvRecords(const std::string& path) {
    WholeRecords whole;
    std::optional<std::uint64_t> last;  // of the record that is being read
    std::string number;
    ReadWholeLines(path, [&](std::int64_t begin, const std::string& line) {
        const std::string own = line.substr(0, line.find(','));
        if (begin > 0 && own != number) {
            number = own;
            last = last ? *last + 1 : 0;
            whole = *last == 0 ? WholeRecords{} : WholeRecords{begin, *last};
        }
    });
    return whole;
}

YearsOutput::YearsOutput(const std::string& path, std::int64_t keptBytes) {
    if (!path.empty()) {
        file_.emplace(path, keptBytes);
    }
}

bool YearsOutput::Append(std::string_view record) const {
    if (file_) {
        file_->Append(record);
        return true;
    }
    return !std::cout.write(record.data(), std::ssize(record)).flush().fail();
}

}  // namespace horavex
