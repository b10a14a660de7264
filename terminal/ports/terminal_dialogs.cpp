#include "terminal/ports/terminal_dialogs.h"

#include <algorithm>
#include <filesystem>
#include <memory>

#include "lang/filled_text.h"
#include "lang/language_pack.h"
#include "terminal/sheets/choice_sheet.h"
#include "terminal/sheets/message_sheet.h"
#include "terminal/sheets/path_sheet.h"

namespace horavex {

namespace {

/// A title that names what is saved is a good name for its file.
std::string NameFor(std::string title, const std::string& suffix) {
    std::replace(title.begin(), title.end(), '/', '-');
    std::erase(title, '.');
    return "~/" + (title.empty() ? title : title + suffix);
}

std::string TerminalWord(const char* key, const char* english) {
    return GetLangString("terminal", key, english);
}

bool HasSuffix(const std::string& path) {
    return std::filesystem::path(path).has_extension();
}

/// What can be read as a file; a folder cannot.
bool IsFile(const std::string& path) {
    std::error_code error;
    return std::filesystem::is_regular_file(path, error);
}

bool IsThere(const std::string& path) {
    std::error_code error;
    return std::filesystem::exists(path, error);
}

}  // namespace

void TerminalDialogs::ShowMessage(const std::string& text, const std::string& title, MessageIcon) {
    Ask(title.empty() ? "Horavex" : title, text, {TerminalWord("OK", "&OK")});
}

/// Returns the number of the button that was pressed.
std::size_t TerminalDialogs::Ask(const std::string& title, const std::string& text,
                                 const std::vector<std::string>& buttons) {
    const auto sheet = std::make_shared<MessageSheet>(title, text, buttons);
    RunSheet(sheet, host_);
    return sheet->Pressed();
}

std::string TerminalDialogs::AskPath(const std::string& title, const std::string& proposed) {
    const auto sheet = std::make_shared<PathSheet>(title, proposed);
    RunSheet(sheet, host_);
    return sheet->Path();
}

std::string TerminalDialogs::OpenFile(const FileRequest& request) {
    std::string path = AskPath(request.title, "~/");
    while (!path.empty() && !IsFile(path)) {
        beep_();
        path = AskPath(request.title, path);
    }
    return path;
}

bool TerminalDialogs::MayWrite(const std::string& path) {
    if (!IsThere(path)) {
        return true;
    }
    const std::string question =
        FilledText(TerminalWord("Exists", "{file} exists already."), "{file}", path);
    return Ask({}, question,
               {TerminalWord("Replace", "&Replace"), TerminalWord("Cancel", "&Cancel")}) == 0;
}

std::string TerminalDialogs::SaveFile(const FileRequest& request, const std::string& suffix) {
    const std::string title =
        request.title.empty() ? TerminalWord("SaveAs", "Save as") : request.title;
    std::string path = NameFor(request.title, suffix);
    do {
        path = AskPath(title, path);
        if (!path.empty() && !HasSuffix(path)) {
            path += suffix;
        }
    } while (!path.empty() && !MayWrite(path));
    return path;
}

}  // namespace horavex
