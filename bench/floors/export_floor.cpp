#include "floors/export_floor.h"

#include <algorithm>
#include <cstring>

#include "base/date.h"

namespace horavex::bench {

namespace {

constexpr std::size_t kDayEnd = 3;  // the last digit of the day
constexpr std::size_t kFirstTime = 8;
constexpr std::size_t kTimeWidth = 12;
constexpr std::string_view kRow =
    "   0    00:00 AM    00:00 AM    00:00 AM    00:00 AM    00:00 AM    00:00 AM  \r\n";
constexpr std::string_view kFirstDay = "   1    ";

void PutTwoDigits(char* at, int number) {
    at[0] = static_cast<char>('0' + number / 10);
    at[1] = static_cast<char>('0' + number % 10);
}

void AppendDay(std::string& text, int day, const YearTimes& times, std::size_t row) {
    char line[kRow.size()];
    std::memcpy(line, kRow.data(), kRow.size());
    line[kDayEnd] = static_cast<char>('0' + day % 10);
    if (day >= 10) {
        line[kDayEnd - 1] = static_cast<char>('0' + day / 10);
    }
    char* at = line + kFirstTime;
    for (const auto& prayer : times) {
        const ClockTime clock = ClockTimeOf(prayer[row] / 24.0);
        PutTwoDigits(at, clock.hour % 12 == 0 ? 12 : clock.hour % 12);
        PutTwoDigits(at + 3, clock.minute);
        at[6] = clock.hour < 12 ? 'A' : 'P';
        at += kTimeWidth;
    }
    text.append(line, sizeof line);
}

}  // namespace

PageHeads HeadsOf(std::string_view pages) {
    PageHeads heads;
    for (std::string& head : heads) {
        head = pages.substr(0, pages.find(kFirstDay));
        pages.remove_prefix(std::min(pages.find('\f', 1), pages.size()));
    }
    return heads;
}

void FloorTextPages(int year, const YearTimes& times, const PageHeads& heads, std::string& text) {
    static const std::string end = std::string(79, '-') + "\r\n\r\n";
    text.clear();
    std::size_t row = 0;
    for (int month = 1; month <= 12; ++month) {
        text += heads[static_cast<std::size_t>(month) - 1];
        for (int day = 1; IsCivilDate(year, month, day); ++day) {
            AppendDay(text, day, times, row++);
            if (day % 5 == 0 && day < 30) {
                text += "\r\n";
            }
        }
        text += end;
    }
}

}  // namespace horavex::bench
