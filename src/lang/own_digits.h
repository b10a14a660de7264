#pragma once

#include <functional>
#include <string>

namespace horavex {

// Users may read numbers in the digits of their language. The program works, stores and talks to
// other programs in plain digits alone, "0" to "9": what users see is turned round at the edge of a
// front end.

/// A text with the digits of all its numbers from a set, which its zero tells: U'٠' for the Arabic
/// one. Arabic, Persian and Urdu digits have a decimal mark of their own. Names keep theirs ("A4",
/// "UTC+2", "2026.pdf"), in brackets and quotation marks too, and so does what begins like a path
/// or holds an address, to the end of its line. A text that is no UTF-8 stays as it is.
std::string WithDigits(const std::string& text, char32_t zero);

/// The zero of the current pack's digits; U'0' for a pack that names no other ones.
char32_t ZeroOfPack();

bool PackHasOwnDigits();

/// Users are to see the digits of the pack, or plain ones, as they do before anything is said.
void ShowOwnDigits(bool wanted);

/// The same as wanted last, of a pack that has become the current one.
void FollowPackDigits();

/// What a front end does when other digits are to be seen: whatever is on view shows its texts
/// anew. An empty one takes it away again.
void InstallDigitsFollower(std::function<void()> follower);

/// A text as users are to see it.
std::string InShownDigits(const std::string& text);

/// A text that a user has typed, as the program reads it: with plain digits where own ones are
/// shown, whichever were typed, and without the marks that kept the order of what was copied.
std::string InPlainDigits(const std::string& typed);

}  // namespace horavex
