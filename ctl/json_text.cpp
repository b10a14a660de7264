#include "ctl/json_text.h"

#include <charconv>
#include <cmath>

#include "base/plain_text.h"

namespace horavex {

namespace {

constexpr double kLeastPlain = 1e-4;  // nearer to zero, an exponent is written
constexpr double kMostPlain = 1e15;

}  // namespace

std::string TextOf(const Json& json) {
    return WithEscapedControls(json.dump(-1, ' ', false, Json::error_handler_t::replace));
}

void AppendJsonNumber(std::string& text, double value) {
    const double size = std::fabs(value);
    if (value != 0.0 && (size < kLeastPlain || size >= kMostPlain)) {
        text += Json(value).dump();
        return;
    }
    char digits[64];
    const auto end =
        std::to_chars(digits, digits + sizeof digits, value, std::chars_format::fixed).ptr;
    text.append(digits, end);
    if (std::trunc(value) == value) {
        text += ".0";
    }
}

ObjectText::ObjectText(const Json& members) : text_(TextOf(members)) {
    text_.pop_back();
}

void ObjectText::Add(const Json& members) {
    text_ += ",";
    text_ += ObjectText(members).text_.substr(1);
}

void ObjectText::Add(const std::string& name, const std::string& json) {
    text_ += "," + TextOf(name) + ":";
    text_ += json;
}

}  // namespace horavex
