#include <unistd.h>

#include <cerrno>
#include <cstring>
#include <filesystem>
#include <functional>
#include <iostream>
#include <string>

#include "base/fault.h"
#include "ctl/document_fonts.h"
#include "timetables/document_tools.h"

namespace horavex {

namespace {

namespace fs = std::filesystem;

/// The same command with the toolkit in it, which takes longer to load than most calls to run.
std::string DocumentsProgram() {
    std::error_code error;
    const fs::path own = fs::read_symlink("/proc/self/exe", error);
    return own.parent_path() / HORAVEX_DOCUMENTS_PROGRAM;
}

/// Goes on as another program, which does the whole call anew.
[[noreturn]] void Become(const std::string& program, char** arguments) {
    std::cout << std::flush;
    ::execv(program.c_str(), arguments);
    throw Fault(program + ": " + std::strerror(errno));
}

/// Of this call; empty where the program is not installed.
std::function<void()> becomeProgram;

}  // namespace

void InstallDocumentFonts(char** arguments) {
    const std::string program = DocumentsProgram();
    if (::access(program.c_str(), X_OK) != 0) {
        return;
    }
    becomeProgram = [=] { Become(program, arguments); };
    InstallDocumentTools(
        {.writePdf = [](const std::string&, const PrintedYear&) { becomeProgram(); },
         .writePng = [](const std::string&, const Drawing&, double, double) { becomeProgram(); }});
}

void TakeDocumentFonts() {
    if (becomeProgram) {
        becomeProgram();
    }
}

}  // namespace horavex
