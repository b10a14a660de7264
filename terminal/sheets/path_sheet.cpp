#include "terminal/sheets/path_sheet.h"

#include <algorithm>
#include <cstdlib>
#include <filesystem>
#include <system_error>

#include "terminal/screen/glyphs.h"

namespace horavex {

namespace {

constexpr int kSides = 3;
constexpr std::size_t kMostNames = 8;

std::string OwnFolder() {
    const char* home = std::getenv("HOME");
    return home == nullptr ? "" : home;
}

/// Whether a byte is one of a UTF-8 character behind its first.
bool GoesOn(char byte) {
    return (static_cast<unsigned char>(byte) & 0xc0U) == 0x80U;
}

/// The whole characters that all have in common at their beginnings.
std::string CommonBeginning(const std::vector<std::string>& texts) {
    const std::string& first = texts.front();
    std::size_t length = first.size();
    for (const std::string& text : texts) {
        const auto differs = std::mismatch(first.begin(), first.end(), text.begin(), text.end());
        length = std::min(length, static_cast<std::size_t>(differs.first - first.begin()));
    }
    while (length < first.size() && GoesOn(first[length])) {
        --length;
    }
    return first.substr(0, length);
}

bool IsFolder(const std::string& path) {
    std::error_code error;
    return std::filesystem::is_directory(path, error);
}

std::string LastPart(const std::string& path) {
    const std::string body = path.ends_with('/') ? path.substr(0, path.size() - 1) : path;
    return path.substr(body.rfind('/') + 1);
}

}  // namespace

std::string ExpandedPath(const std::string& typed) {
    return typed == "~" || typed.starts_with("~/") ? OwnFolder() + typed.substr(1) : typed;
}

std::vector<std::string> PathsThatBegin(const std::string& typed) {
    const std::string path = ExpandedPath(typed);
    const std::size_t slash = path.rfind('/');
    const std::string folder = slash == path.npos ? "" : path.substr(0, slash + 1);
    const std::string beginning = path.substr(folder.size());
    std::vector<std::string> found;
    std::error_code error;
    for (std::filesystem::directory_iterator entry(folder.empty() ? "." : folder, error), end;
         !error && entry != end; entry.increment(error)) {
        const std::string name = entry->path().filename().string();
        const bool isHidden = name.starts_with('.') && !beginning.starts_with('.');
        if (name.starts_with(beginning) && !isHidden) {
            std::error_code ignored;
            found.push_back(folder + name + (entry->is_directory(ignored) ? "/" : ""));
        }
    }
    std::sort(found.begin(), found.end());
    return found;
}

PathSheet::PathSheet(std::string title, std::string path)
    : title_(std::move(title)), typed_(std::move(path)) {}

std::string PathSheet::Path() const {
    return accepted_ ? ExpandedPath(typed_) : std::string();
}

void PathSheet::Complete() {
    const std::vector<std::string> found = PathsThatBegin(typed_);
    names_.clear();
    if (found.empty()) {
        return;
    }
    Put(CommonBeginning(found));
    for (std::size_t i = 0; found.size() > 1 && i < std::min(found.size(), kMostNames); ++i) {
        names_.push_back(LastPart(found[i]));
    }
}

void PathSheet::Put(const std::string& path) {
    typed_ = path;
    line_.MoveToEnd();
}

/// A folder is gone into; no file is meant yet.
void PathSheet::Accept() {
    const std::string path = ExpandedPath(typed_);
    if (IsFolder(path) && !path.ends_with('/')) {
        Put(typed_ + "/");
    }
    if (path.empty() || typed_.ends_with('/')) {
        Complete();
        return;
    }
    accepted_ = true;
    End();
}

void PathSheet::Press(const KeyPress& key) {
    if (key.code == KeyCode::kTab) {
        Complete();
    } else if (key.code == KeyCode::kEnter) {
        Accept();
    } else if (key.code == KeyCode::kEscape) {
        End();
    } else {
        bool kept = false;
        typed_ = line_.After(key, typed_, kept).value_or(typed_);
    }
}

void PathSheet::Draw(Cells& screen) {
    const int width = std::min(72, screen.Columns() - 2);
    const auto height = static_cast<int>(names_.size()) + 5;
    const Area box{(screen.Rows() - height) / 2, (screen.Columns() - width) / 2, height, width};
    screen.Fill(box);
    screen.Frame(box, title_, Tone::kPlain, Tone::kStrong);
    line_.Draw(screen, {box.row + 2, box.column + kSides, 1, width - 2 * kSides}, typed_,
               Tone::kSelected, true);
    int row = box.row + 4;
    for (const std::string& name : names_) {
        screen.PutAsIs(row++, box.column + kSides, name, Tone::kFaint, width - 2 * kSides);
    }
}

}  // namespace horavex
