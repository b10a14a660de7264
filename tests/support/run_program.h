#pragma once

#include <map>
#include <string>
#include <vector>

namespace horavex {

/// Variables of an environment by name.
using Environment = std::map<std::string, std::string>;

/// The words of a command line and the like, in the form that the system calls want: pointers
/// with a null behind the last. They live as long as the texts.
std::vector<char*> PointersOf(std::vector<std::string>& texts);

/// "NAME=value" of each variable. What a sanitizer finds ends the program with kSanitizerStatus,
/// so that it is never taken for an orderly failure.
std::vector<std::string> AssignmentsOf(const Environment& environment);
inline constexpr int kSanitizerStatus = 99;

/// The exit status out of what waitpid tells; 128 and the signal's number for a killed program.
int ExitStatus(int waitStatus);

struct ProgramRun {
    int status;
    std::string out;
    std::string err;
};

/// The bytes of a file; none where there is no such file.
std::string ContentOf(const std::string& path);

/// Runs a program, by its path or found in the PATH of the tests, to its end, with nothing on its
/// standard input and no variables but the given ones.
ProgramRun RunCommand(const std::vector<std::string>& words, const Environment& environment);

/// Runs a program of the build's bin folder so.
ProgramRun RunProgram(const std::string& name, const std::vector<std::string>& arguments,
                      const Environment& environment);

}  // namespace horavex
