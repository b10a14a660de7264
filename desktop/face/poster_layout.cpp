#include "desktop/face/poster_layout.h"

#include <QFontMetricsF>
#include <algorithm>
#include <functional>

#include "desktop/face/countdown_line.h"
#include "desktop/face/face_day.h"
#include "desktop/face/fitted_text.h"
#include "desktop/face/palette.h"

namespace horavex {

namespace {

// Parts of the height.
constexpr double kHeadTop = 0.035;
constexpr double kHead = 0.07;
constexpr double kPlace = 0.06;
constexpr double kClockTop = 0.19;
constexpr double kClock = 0.26;
constexpr double kNextTop = 0.46;
constexpr double kNext = 0.13;
constexpr double kCellsTop = 0.64;
constexpr double kCellsBottom = 0.95;

// Parts of the unit. Letters of a twentieth of it are read from ten metres on a screen of 70 cm.
constexpr double kMargin = 0.03;
constexpr double kGap = 0.006;  // at either side of a cell
constexpr double kPadding = 0.008;
constexpr double kTimePadding = 0.02;  // beside times, which are all of one width
constexpr double kWordGap = 0.05;
constexpr double kDateType = 0.05;
constexpr double kWeekdayType = 0.06;
constexpr double kPlaceType = 0.042;
constexpr double kClockType = 0.25;
constexpr double kWordsType = 0.08;
constexpr double kDigitsType = 0.12;
constexpr double kNameType = 0.056;
constexpr double kTimeType = 0.068;
constexpr double kIqamaType = 0.045;

double WidthOf(const PosterText& text) {
    return QFontMetricsF(FaceFont(text.pixels, text.bold)).horizontalAdvance(text.text);
}

void Scale(PosterText& text, double scale) {
    text.pixels = std::max(1, static_cast<int>(text.pixels * scale));
}

/// Adds texts side by side in one size, in which each fits its area.
void AddFitted(std::vector<PosterText>& texts, std::vector<PosterText> row) {
    double scale = 1.0;
    for (const PosterText& text : row) {
        scale = std::min(scale, text.area.width() / std::max(1.0, WidthOf(text)));
    }
    for (PosterText& text : row) {
        Scale(text, scale);
        texts.push_back(text);
    }
}

/// The widest digit of a set, which one of them tells.
QChar WidestLike(QChar digit, const QFontMetricsF& metrics) {
    const auto zero = static_cast<char16_t>(digit.unicode() - digit.digitValue());
    QChar widest(zero);
    for (char16_t value = 1; value < 10; ++value) {
        const QChar other(static_cast<char16_t>(zero + value));
        widest =
            metrics.horizontalAdvance(other) > metrics.horizontalAdvance(widest) ? other : widest;
    }
    return widest;
}

/// Of one width whatever the second.
QString WidestOf(QString counted, const QFont& font) {
    const QFontMetricsF metrics(font);
    for (QChar& sign : counted) {
        sign = sign.isDigit() ? WidestLike(sign, metrics) : sign;
    }
    return counted;
}

}  // namespace

PosterLayout::PosterLayout(QSize screen)
    : screen_(screen), unit_(std::min(screen_.height(), screen_.width() / 2.0)) {}

QRectF PosterLayout::Line(double top, double height) const {
    const double margin = kMargin * unit_;
    return {margin, top * screen_.height(), screen_.width() - 2.0 * margin,
            height * screen_.height()};
}

QRect PosterLayout::StarsArea() const {
    return Line(0.0, kCellsTop).toRect();
}

QRect PosterLayout::CountdownArea() const {
    return Line(kNextTop, kNext).toAlignedRect();
}

QRectF PosterLayout::Cell(std::size_t prayer, Qt::LayoutDirection direction) const {
    const QRectF row = Line(kCellsTop, kCellsBottom - kCellsTop);
    const std::size_t place = direction == Qt::RightToLeft ? kCells - 1 - prayer : prayer;
    const double step = row.width() / kCells;
    const double gap = kGap * unit_;
    return QRectF(row.left() + static_cast<double>(place) * step, row.top(), step, row.height())
        .adjusted(gap, 0.0, -gap, 0.0);
}

QRectF PosterLayout::PartOfCell(const QRectF& cell, double top, double bottom,
                                double atEdges) const {
    const double padding = atEdges * unit_;
    return {cell.left() + padding, cell.top() + top * cell.height(), cell.width() - 2.0 * padding,
            (bottom - top) * cell.height()};
}

PosterText PosterLayout::Wanted(const QRectF& area, double part, const QColor& colour,
                                const QString& text, bool bold) const {
    return {area, static_cast<int>(part * unit_), colour, text, bold};
}

// Words and digits are one line in the middle, in the order of the words' script. Digits that
// change do not move it.
std::vector<PosterText> PosterLayout::Countdown(const FaceDay& day) const {
    const QRectF line = Line(kNextTop, kNext);
    const double gap = kWordGap * unit_;
    const QString said =
        day.rows.at(day.next).name + QStringLiteral(" \u00b7 ") + day.countdownWords;
    const QString counted = CountdownDigits(day.seconds);
    PosterText words = Wanted(line, kWordsType, kCream, said);
    PosterText digits = Wanted(line, kDigitsType, kGold, counted, true);
    digits.text = WidestOf(counted, FaceFont(digits.pixels, digits.bold));
    const double scale =
        std::min(1.0, (line.width() - gap) / std::max(1.0, WidthOf(words) + WidthOf(digits)));
    Scale(words, scale);
    Scale(digits, scale);
    const double left = (line.width() - WidthOf(words) - gap - WidthOf(digits)) / 2.0;
    const bool fromRight = DirectionOf(said) == Qt::RightToLeft;
    PosterText& first = fromRight ? digits : words;
    PosterText& second = fromRight ? words : digits;
    first.area.setLeft(line.left() + left);
    first.area.setWidth(WidthOf(first));
    second.area.setLeft(first.area.right() + gap);
    second.area.setWidth(WidthOf(second));
    digits.text = counted;
    return {words, digits};
}

std::vector<PosterText> PosterLayout::Rest(const FaceDay& day, const PosterDates& dates) const {
    std::vector<PosterText> texts;
    AddDates(texts, dates);
    AddFitted(texts, {Wanted(Line(kHeadTop + kHead, kPlace), kPlaceType, kGold, day.place)});
    AddFitted(texts, {Wanted(Line(kClockTop, kClock), kClockType, kCream, day.clock, true)});
    AddPrayers(texts, day);
    return texts;
}

void PosterLayout::AddDates(std::vector<PosterText>& texts, const PosterDates& dates) const {
    const QRectF head = Line(kHeadTop, kHead);
    const double third = head.width() / 3.0;
    const auto place = [&](int number) {
        return QRectF(head.left() + number * third, head.top(), third, head.height());
    };
    AddFitted(texts, {Wanted(place(0), kDateType, kCream, dates.date),
                      Wanted(place(2), kDateType, kCream, dates.hijri)});
    AddFitted(texts, {Wanted(place(1), kWeekdayType, kGold, dates.weekday, true)});
}

void PosterLayout::AddPrayers(std::vector<PosterText>& texts, const FaceDay& day) const {
    const Qt::LayoutDirection direction = DirectionOf(day.cells.front().name);
    const bool hasIqamas = std::ranges::any_of(day.iqamas, std::not_fn(&QString::isEmpty));
    const double top = hasIqamas ? 0.06 : 0.19;  // in the middle of a card that holds no more
    std::vector<PosterText> names;
    std::vector<PosterText> times;
    std::vector<PosterText> iqamas;
    for (std::size_t prayer = 0; prayer < kCells; ++prayer) {
        const QRectF cell = Cell(prayer, direction);
        const bool isNext = prayer == day.next;
        const QColor colour = isNext ? kGold : kCream;
        const auto& [name, time] = day.cells.at(prayer);
        names.push_back(
            Wanted(PartOfCell(cell, top, top + 0.28, kPadding), kNameType, colour, name, isNext));
        times.push_back(Wanted(PartOfCell(cell, top + 0.3, top + 0.62, kTimePadding), kTimeType,
                               colour, time, true));
        iqamas.push_back(Wanted(PartOfCell(cell, 0.7, 0.94, kPadding), kIqamaType, kCream,
                                day.iqamas.at(prayer)));
    }
    for (auto& row : {names, times, iqamas}) {
        AddFitted(texts, row);
    }
}

}  // namespace horavex
