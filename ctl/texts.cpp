#include <memory>
#include <optional>

#include "ctl/command.h"
#include "lang/language_pack.h"
#include "store/stored_values.h"
#include "store/text_table.h"
#include "update/web_pages.h"

namespace horavex {

namespace {

struct TextOptions {
    std::uint16_t entry = 0;
    std::int16_t language = 0;
};

struct LangOptions {
    std::string section;
    std::string key;
    std::string defaultText;
    std::optional<std::string> language;
};

void PrintText(const Session& session, const std::string& text) {
    session.Print({{"text", text}}, text + "\n");
}

void PrintLangString(const Session& session, const LangOptions& options) {
    currentLanguage = options.language ? *options.language : ReadStoredLanguage();
    PrintText(session,
              WithWebAddress(GetLangString(options.section, options.key, options.defaultText)));
}

void AddLangCommand(CLI::App& app, Session& session) {
    auto* command = AddCommand(app, session, "lang", "A text of a language pack");
    auto options = std::make_shared<LangOptions>();
    command->add_option("--section", options->section, "Section of the pack")->required();
    command->add_option("--key", options->key, "Key in the section")->required();
    command->add_option("--default", options->defaultText, "Text where the pack has none");
    command->add_option("--language", options->language, "Pack; the stored one without it");
    command->callback([&session, options] { PrintLangString(session, *options); });
}

}  // namespace

void AddTextCommands(CLI::App& app, Session& session) {
    AddLangCommand(app, session);
    auto* command = AddCommand(app, session, "text", "An entry of the text table");
    auto options = std::make_shared<TextOptions>();
    command->add_option("--entry", options->entry, "Number of the entry")
        ->check(CLI::Range(1, 65535))
        ->required();
    command->add_option("--language", options->language, "Column, 1 to 6")
        ->check(CLI::Range(0, 6))
        ->required();
    command->callback([&session, options] {
        PrintText(session, TextItem(TextEntry{options->entry}, options->language));
    });
}

}  // namespace horavex
