#pragma once

#include <string>

namespace horavex {

// Made by minisign 0.11 with keys that sign nothing else: a key, and its signature of the file
// "4.2.0" and the end of its line.
inline constexpr const char* kKey = "RWSYJL7wwg5J/an3Pe51YCc2rKnnTXXSdhOcRnU2N3ZOvSx8amcIoLdv";
inline constexpr const char* kSignedFile = "4.2.0\n";
inline const std::string kSignature =
    "untrusted comment: signature from minisign secret key\n"
    "RUSYJL7wwg5J/bats13fzDoyMf/"
    "u+Wjz7KamipUH9m86LYDEhx+6JaPXV+vqGKoR97LC0d7aOVVqtA6Tb2xYJEqzSPd7+gNc"
    "IAg=\n"
    "trusted comment: a comment that is signed\n"
    "DddYm+P2RYdn697OJoFi9UUx3dvknW56r7DDhANB711HhWuvewS6/8/9ONYc2A+eapVi8rEVMLAPASDJZqdzCg==\n";

}  // namespace horavex
