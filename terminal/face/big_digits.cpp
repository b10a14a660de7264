#include "terminal/face/big_digits.h"

#include <array>
#include <cstdio>
#include <string_view>

namespace horavex {

namespace {

using Rows = std::array<std::string_view, kDigitRows>;

constexpr std::array<Rows, 10> kDigits = {{
    {"######", "##  ##", "##  ##", "##  ##", "######"},
    {"  ##  ", "####  ", "  ##  ", "  ##  ", "######"},
    {"######", "    ##", "######", "##    ", "######"},
    {"######", "    ##", " #####", "    ##", "######"},
    {"##  ##", "##  ##", "######", "    ##", "    ##"},
    {"######", "##    ", "######", "    ##", "######"},
    {"######", "##    ", "######", "##  ##", "######"},
    {"######", "    ##", "   ## ", "  ##  ", "  ##  "},
    {"######", "##  ##", "######", "##  ##", "######"},
    {"######", "##  ##", "######", "    ##", "######"},
}};
constexpr Rows kColon = {"  ", "##", "  ", "##", "  "};
constexpr int kGap = 1;

const Rows& RowsOf(char c) {
    return c >= '0' && c <= '9' ? kDigits[static_cast<std::size_t>(c - '0')] : kColon;
}

}  // namespace

std::string CountdownDigits(int seconds) {
    char text[16];
    std::snprintf(text, sizeof text, "%02d:%02d:%02d", seconds / 3600 % 100, seconds / 60 % 60,
                  seconds % 60);
    return text;
}

int WidthOfBigDigits(const std::string& digits) {
    int width = -kGap;
    for (const char c : digits) {
        width += static_cast<int>(RowsOf(c).front().size()) + kGap;
    }
    return width;
}

void PutBigDigits(Cells& cells, CellPlace at, const std::string& digits, const Look& look) {
    for (const char c : digits) {
        const Rows& rows = RowsOf(c);
        for (int row = 0; row < kDigitRows; ++row) {
            const std::string_view line = rows[static_cast<std::size_t>(row)];
            for (std::size_t column = 0; column < line.size(); ++column) {
                if (line[column] == '#') {
                    cells.Put(at.row + row, at.column + static_cast<int>(column), "█", look);
                }
            }
        }
        at.column += static_cast<int>(rows.front().size()) + kGap;
    }
}

}  // namespace horavex
