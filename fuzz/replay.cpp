// fuzz_replay TARGET FOLDER CHANGED: runs a target on every file of a folder as it is, and on that
// many inputs that are made of these by changes, the same ones in every run.

#include <unistd.h>

#include <csignal>
#include <filesystem>
#include <iostream>
#include <random>
#include <set>
#include <string>

#include "fuzz/target.h"
#include "linux/posix_files.h"

namespace horavex {
namespace {

namespace fs = std::filesystem;

std::vector<Bytes> InputsOf(const fs::path& folder) {
    std::set<fs::path> paths;
    for (const auto& entry : fs::directory_iterator(folder)) {
        paths.insert(entry.path());
    }
    PosixFiles files;
    std::vector<Bytes> inputs;
    for (const fs::path& path : paths) {
        inputs.push_back(ReadWhole(files, path));
    }
    return inputs;
}

class Changes {
public:
    explicit Changes(const std::vector<Bytes>& inputs) : inputs_(inputs) {}

    /// One of the inputs with a few bytes set, put in or taken out, or the end of another behind
    /// it.
    Bytes Next() {
        Bytes input = inputs_[Below(inputs_.size())];
        for (std::size_t left = 1 + Below(4); left > 0; --left) {
            Change(input);
        }
        return input;
    }

private:
    std::size_t Below(std::size_t end) { return end == 0 ? 0 : numbers_() % end; }

    void Change(Bytes& input) {
        const auto at = input.begin() + static_cast<std::ptrdiff_t>(Below(input.size()));
        switch (Below(input.empty() ? 1 : 5)) {
            case 0:
                input.insert(at, static_cast<std::uint8_t>(numbers_()));
                break;
            case 1:
                *at = static_cast<std::uint8_t>(numbers_());
                break;
            case 2:
                *at ^= static_cast<std::uint8_t>(1U << Below(8));
                break;
            case 3:
                input.erase(at, at + static_cast<std::ptrdiff_t>(
                                         1 + Below(static_cast<std::size_t>(input.end() - at))));
                break;
            default:
                TakeOver(input, at);
        }
    }

    void TakeOver(Bytes& input, Bytes::iterator at) {
        const Bytes& other = inputs_[Below(inputs_.size())];
        const auto from = other.begin() + static_cast<std::ptrdiff_t>(Below(other.size()));
        input.erase(at, input.end());
        input.insert(input.end(), from, other.end());
    }

    const std::vector<Bytes>& inputs_;
    std::minstd_rand numbers_{1};
};

/// The input that is being read, in hexadecimal digits, for who looks for what it has ended over.
std::string digits;

void PrintDigits(int signal) {
    [[maybe_unused]] const ::ssize_t written = ::write(STDERR_FILENO, digits.data(), digits.size());
    std::signal(signal, SIG_DFL);
    std::raise(signal);
}

void Run(const FuzzTarget& target, const Bytes& input) {
    digits = "the input:";
    for (const std::uint8_t byte : input) {
        constexpr const char* kDigits = "0123456789abcdef";
        digits += {kDigits[byte >> 4], kDigits[byte & 15]};
    }
    digits += '\n';
    target.run(input);
}

int Replay(const FuzzTarget& target, const fs::path& folder, int changed) {
    std::signal(SIGABRT, PrintDigits);
    std::signal(SIGSEGV, PrintDigits);
    const std::vector<Bytes> inputs = InputsOf(folder);
    if (inputs.empty()) {
        std::cerr << "fuzz_replay: no input in " << folder << '\n';
        return 1;
    }
    for (const Bytes& input : inputs) {
        Run(target, input);
    }
    Changes changes(inputs);
    for (int i = 0; i < changed; ++i) {
        Run(target, changes.Next());
    }
    // What is told from here on is of no input.
    std::signal(SIGABRT, SIG_DFL);
    std::signal(SIGSEGV, SIG_DFL);
    std::cout << inputs.size() << " inputs, " << changed << " changed ones\n";
    return 0;
}

}  // namespace
}  // namespace horavex

int main(int argumentCount, char** arguments) {
    if (argumentCount != 4) {
        std::cerr << "usage: fuzz_replay TARGET FOLDER CHANGED\n";
        return 2;
    }
    return horavex::Replay(horavex::FindFuzzTarget(arguments[1]), arguments[2],
                           std::stoi(arguments[3]));
}
