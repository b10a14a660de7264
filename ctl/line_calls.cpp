#include "ctl/line_calls.h"

#include <algorithm>

#include "ctl/csv_record.h"
#include "ctl/place_lines.h"

namespace horavex {

namespace {

constexpr const char* kName = "name";
constexpr const char* kYear = "year";

std::string TextOfValue(const std::string& name, const Json& value) {
    if (value.is_null()) {
        return {};
    }
    if (!value.is_string() && !value.is_number()) {
        RefuseUsage("\"" + name + "\" is neither a text nor a number");
    }
    return value.is_string() ? value.get<std::string>() : value.dump();
}

Json ObjectOf(const std::string& line) {
    const Json object = Json::parse(line, nullptr, false);
    if (!object.is_object()) {
        RefuseUsage("is no JSON object");
    }
    return object;
}

}  // namespace

LineCalls::LineCalls(std::vector<std::string> columns, std::optional<int> year)
    : columns_(std::move(columns)), year_(year) {
    options_.set_help_flag();
    AddYearCallOptions(options_, call_);
    std::ranges::for_each(columns_, [this](const std::string& name) { RequireKnown(name); });
}

NamedCall LineCalls::Read(const std::string& line) {
    if (line.size() > kLongestPlaceLine) {
        RefuseUsage("is longer than " + std::to_string(kLongestPlaceLine) + " bytes");
    }
    const Fields fields = FieldsOf(line);
    call_ = {};
    options_.parse(WordsOf(fields));
    RequireAll(call_.place);
    const auto name = std::ranges::find(fields, kName, &Field::name);
    return {call_, name == fields.end() ? std::string() : name->value};
}

LineCalls::Fields LineCalls::FieldsOf(const std::string& line) const {
    if (!columns_.empty()) {
        return CsvFieldsOf(line);
    }
    const Json object = ObjectOf(line);
    Fields fields;
    for (const auto& [name, value] : object.items()) {
        RequireKnown(name);
        fields.push_back({name, TextOfValue(name, value)});
    }
    return fields;
}

LineCalls::Fields LineCalls::CsvFieldsOf(const std::string& line) const {
    const CsvRecord record = ReadCsvRecord(line);
    if (record.state != CsvState::kWhole) {
        RefuseUsage("its quotes are wrong");
    }
    if (record.fields.size() != columns_.size()) {
        RefuseUsage("has " + std::to_string(record.fields.size()) + " fields where the head has " +
                    std::to_string(columns_.size()));
    }
    Fields fields;
    for (std::size_t column = 0; column < columns_.size(); ++column) {
        fields.push_back({columns_[column], record.fields[column]});
    }
    return fields;
}

void LineCalls::RequireKnown(const std::string& name) const {
    const bool isKnown = name == kName || (!name.empty() && !name.starts_with('-') &&
                                           options_.get_option_no_throw("--" + name) != nullptr);
    if (!isKnown) {
        RefuseUsage("\"" + name + "\" is neither an option of the command year nor \"name\"");
    }
}

/// As the parser of options takes them: the last one first.
std::vector<std::string> LineCalls::WordsOf(const Fields& fields) const {
    std::vector<std::string> words;
    const auto add = [&words](const std::string& name, const std::string& value) {
        words.push_back("--" + name + "=" + value);
    };
    const bool hasYear = std::ranges::any_of(
        fields, [](const Field& field) { return field.name == kYear && !field.value.empty(); });
    if (year_ && !hasYear) {
        add(kYear, std::to_string(*year_));
    }
    for (const auto& [name, value] : fields) {
        if (name != kName && !value.empty()) {
            add(name, value);
        }
    }
    std::ranges::reverse(words);
    return words;
}

}  // namespace horavex
