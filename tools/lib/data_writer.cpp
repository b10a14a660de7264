#include "lib/data_writer.h"

#include <filesystem>
#include <fstream>
#include <iostream>

#include "base/fault.h"
#include "base/int16.h"
#include "store/indexed_file.h"

namespace horavex {

std::int64_t TextPacker::Add(const std::string& text, CodePage page) {
    const auto encoded = EncodeCodePage(text, page);
    if (!encoded) {
        throw TypeMismatchFault("the code page lacks a character of \"" + text + "\"");
    }
    const auto position = static_cast<std::int64_t>(packed_.size()) + 1;
    if (position > largest_) {
        throw OverflowFault("no room in the packed file for \"" + text + "\"");
    }
    const Bytes stored = DecodeText(*encoded);  // its own inverse
    packed_.insert(packed_.end(), stored.begin(), stored.end());
    return position;
}

void AppendInt16(Bytes& bytes, std::int64_t value) {
    bytes.resize(bytes.size() + 2);
    PutInt16(bytes, bytes.size() - 2, ToInt16(value));
}

void AppendInt32(Bytes& bytes, std::int32_t value) {
    bytes.resize(bytes.size() + 4);
    PutInt32(bytes, bytes.size() - 4, value);
}

void WriteDataFile(const std::string& folder, const std::string& name, ByteView bytes) {
    std::filesystem::create_directories(folder);
    const std::string path = folder + "/" + name;
    const std::string text = StringOf(bytes);
    std::ofstream out(path, std::ios::binary | std::ios::trunc);
    out.write(text.data(), static_cast<std::streamsize>(text.size()));
    out.close();
    if (!out) {
        throw FileFault(path, "cannot be written");
    }
}

int RunTool(const char* name, int argumentCount, int wanted, void (*work)(char** arguments),
            char** arguments) {
    if (argumentCount != wanted + 1) {
        std::cerr << name << ": wants " << wanted << " arguments\n";
        return 2;
    }
    try {
        work(arguments + 1);
        return 0;
    } catch (const std::exception& fault) {
        std::cerr << name << ": " << fault.what() << '\n';
        return 1;
    }
}

}  // namespace horavex
