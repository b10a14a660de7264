#pragma once

#include <string>
#include <vector>

#include "terminal/forms/text_widgets.h"
#include "terminal/sheets/ending_sheet.h"

namespace horavex {

/// A line to type the path of a file into. The Tab key completes it, "~" stands for the user's own
/// folder, and the names that it may go on with stand below. Enter goes into a folder.
class PathSheet : public EndingSheet {
public:
    PathSheet(std::string title, std::string path);

    void Draw(Cells& screen) override;
    void Press(const KeyPress& key) override;

    /// The whole path; empty where the user gave up.
    std::string Path() const;

private:
    void Complete();
    void Accept();
    void Put(const std::string& path);

    std::string title_;
    std::string typed_;
    EditedLine line_;
    std::vector<std::string> names_;  // that begin as the last part does
    bool accepted_ = false;
};

/// "~/a" with the user's folder in place of the sign.
std::string ExpandedPath(const std::string& typed);

/// What begins so: the paths of files and folders, these with a slash at the end, in order.
std::vector<std::string> PathsThatBegin(const std::string& typed);

}  // namespace horavex
