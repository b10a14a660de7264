#include "ctl/line_answer.h"

#include <algorithm>

namespace horavex {

namespace {

constexpr char kEnd = '\n';
constexpr char kThere = '+';
constexpr char kNew = '-';

}  // namespace

std::string PackedAnswer(LineEnd end, std::string told, const std::string& record) {
    std::ranges::replace_if(
        told, [](char letter) { return letter == '\n' || letter == '\r'; }, ' ');
    std::string packed;
    packed.reserve(told.size() + record.size() + 2);
    packed += static_cast<char>(end);
    packed += told;
    packed += kEnd;
    packed += record;
    return packed;
}

LineAnswer UnpackedAnswer(std::string_view packed) {
    const std::size_t end = packed.find(kEnd);
    return {static_cast<LineEnd>(packed.front()), packed.substr(1, end - 1),
            packed.substr(end + 1)};
}

std::string PackedRequest(const LineRequest& request) {
    return (request.isThere ? kThere : kNew) + request.number + kEnd + request.text;
}

LineRequest UnpackedRequest(const std::string& packed) {
    const std::size_t end = packed.find(kEnd);
    return {packed.substr(1, end - 1), packed.front() == kThere, packed.substr(end + 1)};
}

}  // namespace horavex
