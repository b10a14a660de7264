#include "desktop/documents/month_page.h"

#include <QFontMetricsF>
#include <QGlyphRun>
#include <QPaintEngine>
#include <QPainterPath>
#include <QRawFont>
#include <QTextLayout>
#include <numeric>

#include "base/rounding.h"
#include "desktop/documents/column_widths.h"
#include "desktop/documents/drawing_steps.h"
#include "desktop/user_text.h"
#include "forms/inks.h"

namespace horavex {

namespace {

// Sizes in points, 1/72 inch.
constexpr double kTitleSize = 17.0;
constexpr double kPlaceSize = 12.0;
constexpr double kTextSize = 9.0;
constexpr double kLineHeight = 1.45;  // of the size of the text
constexpr double kTallestRow = 19.0;
constexpr double kCellStart = 3.0;  // from the beginning of a column to its texts
constexpr double kCellEnd = 7.0;    // from its longest text to the next column
constexpr double kFootLines = 5.0;

constexpr int kFriday = 5;
const QColor kInk = OnPaper(ink::kPageText);
const QColor kAccent = OnPaper(ink::kAccent);
const QColor kShade = OnPaper(ink::kPageShade);
const QColor kRule = OnPaper(ink::kPageRule);

/// Shares of the width: of the day and the Hijri date, beside 1 for each of six times. Dates keep
/// their part of the page where more times share the rest.
std::vector<double> SharesOf(std::size_t columns) {
    constexpr double kUsualColumns = 8.0;
    const double more = static_cast<double>(columns) / kUsualColumns;
    std::vector<double> shares(columns, 1.0);
    shares[0] = 1.5 * more;
    shares[1] = 2.0 * more;
    return shares;
}

/// A line of text as outlines. A painter that records for a preview would lay each piece of it out
/// anew, and so lose the order of a line in two directions.
void DrawOutlines(QPainter& painter, const QTextLayout& layout, const QPointF& at) {
    painter.setRenderHint(QPainter::Antialiasing);
    for (const QGlyphRun& run : layout.glyphRuns()) {
        const QList<quint32> glyphs = run.glyphIndexes();
        for (qsizetype i = 0; i < glyphs.size(); ++i) {
            const QPainterPath outline = run.rawFont().pathForGlyph(glyphs[i]);
            painter.fillPath(outline.translated(at + run.positions()[i]), painter.pen().color());
        }
    }
}

class MonthPage {
public:
    MonthPage(QPainter& painter, const QRectF& area, double dotsPerInch, const PrintedYear& year,
              int month)
        : painter_(painter),
          area_(area),
          point_(dotsPerInch / 72.0),
          year_(year),
          month_(month),
          days_(DaysOfMonth(year.table, month)) {}

    void Draw() {
        DrawHead();
        DrawColumnHeads();
        const double room = area_.bottom() - top_ - kFootLines * LineHeight(kTextSize);
        const double rowHeight =
            std::min(kTallestRow * point_, room / static_cast<double>(days_.size()));
        for (const TimetableDay& day : days_) {
            DrawDay(day, rowHeight);
        }
        DrawFootnotes();
    }

private:
    const TimetableWords& Words() const { return year_.words; }

    double LineHeight(double size) const { return size * kLineHeight * point_; }

    void UseFont(double size, bool bold) {
        QFont font;
        font.setFamilies({QStringLiteral("Noto Sans"), QStringLiteral("Noto Sans Arabic"),
                          QStringLiteral("DejaVu Sans")});  // which has not all letters of Urdu
        font.setPixelSize(qRound(size * point_));
        font.setBold(bold);
        font.setHintingPreference(QFont::PreferNoHinting);
        painter_.setFont(font);
        const QFontMetricsF metrics(font, painter_.device());
        baseline_ = (metrics.ascent() - metrics.descent()) / 2.0;
    }

    /// From the side where the language begins.
    QRectF Mirrored(const QRectF& box) const {
        if (!Words().rightToLeft) {
            return box;
        }
        return {area_.left() + area_.right() - box.right(), box.top(), box.width(), box.height()};
    }

    /// The text runs in its own direction, at the side where the language begins. Whatever its
    /// letters, it stands on the baseline of its row: those of some scripts reach higher than the
    /// font that was asked for.
    void Write(const QRectF& box, const QString& text, const QColor& colour = kInk) {
        QTextOption option(Words().rightToLeft ? Qt::AlignRight : Qt::AlignLeft);
        option.setWrapMode(QTextOption::NoWrap);
        option.setTextDirection(text.isRightToLeft() ? Qt::RightToLeft : Qt::LeftToRight);
        QTextLayout layout(text, painter_.font(), painter_.device());
        layout.setTextOption(option);
        layout.beginLayout();
        QTextLine line = layout.createLine();
        line.setLineWidth(box.width());
        layout.endLayout();
        const QRectF place = Mirrored(box);
        Draw(layout, {place.left(), place.center().y() + baseline_ - line.ascent()}, colour);
    }

    /// In smaller type where it is too wide.
    void WriteFitted(const QRectF& box, const QString& text, const QColor& colour = kInk) {
        const QFont font = painter_.font();
        const double width = QFontMetricsF(font).horizontalAdvance(text);
        if (width > box.width()) {
            QFont smaller = font;
            smaller.setPixelSize(static_cast<int>(font.pixelSize() * box.width() / width));
            painter_.setFont(smaller);
        }
        Write(box, text, colour);
        painter_.setFont(font);
    }

    void Draw(const QTextLayout& layout, const QPointF& at, const QColor& colour) {
        painter_.setPen(colour);
        if (painter_.paintEngine()->type() == QPaintEngine::Picture) {
            DrawOutlines(painter_, layout, at);
        } else {
            layout.draw(&painter_, at);
        }
    }

    void WriteLine(const QString& text, double size, bool bold, const QColor& colour = kInk) {
        UseFont(size, bold);
        const double height = LineHeight(size);
        WriteFitted({area_.left(), top_, area_.width(), height}, text, colour);
        top_ += height;
    }

    /// A name and a value with a direction of its own: from left to right unless it has words.
    QString Fact(const std::string& name, const std::string& value) const {
        static const QChar kIsolate(0x2068);
        static const QChar kEndIsolate(0x2069);
        return UserText(name + Words().colon) + kIsolate + UserText(value) + kEndIsolate;
    }

    static QString Joined(const QStringList& facts) { return facts.join(QStringLiteral("     ")); }

    void DrawHead() {
        const Timetable& table = year_.table;
        const auto [ishaName, ishaValue] = IshaFact(table, Words());
        WriteLine(UserText(Words().title + " - " + Words().MonthTitle(table.year, month_)),
                  kTitleSize, true, kAccent);
        WriteLine(UserText(table.place), kPlaceSize, true);
        WriteLine(Joined({Fact(Words().latitude, Words().DegreesIn(table.latitude)),
                          Fact(Words().longitude, Words().DegreesIn(table.longitude)),
                          Fact(Words().zone, ZoneFact(table, Words()))}),
                  kTextSize, false);
        WriteLine(Joined({Fact(Words().fajrAngle, Words().DegreesIn(table.fajrAngle)),
                          Fact(ishaName, ishaValue),
                          Fact(Words().asrRatio, Words().NumberIn(table.asrRatio) + ":1")}),
                  kTextSize, false);
        WriteLine(Fact(Words().qibla, Words().DegreesIn(RoundToPlaces(table.qiblaDegrees, 1))),
                  kTextSize, false);
        top_ += LineHeight(kTextSize) / 2.0;
    }

    QRectF Cell(std::size_t column, double height) const {
        const auto before = widths_.begin() + static_cast<std::ptrdiff_t>(column);
        return {std::accumulate(widths_.begin(), before, area_.left()) + kCellStart * point_, top_,
                *before - (kCellStart + kCellEnd) * point_, height};
    }

    void DrawRule(const QColor& colour, double width) {
        painter_.setPen(QPen(colour, width * point_));
        painter_.drawLine(QPointF(area_.left(), top_), QPointF(area_.right(), top_));
    }

    QStringList Heads() const {
        QStringList heads = {UserText(Words().day), UserText(Words().hijri)};
        for (const std::string& name : Words().Heads(days_.front())) {
            heads << UserText(name);
        }
        return heads;
    }

    QStringList Cells(const TimetableDay& day) const {
        const std::string mark = day.change == DaylightChange::kNone ? "" : " *";
        QStringList cells = {UserText(std::to_string(CivilFromDate(day.date).day) + " " +
                                      Words().WeekdayOf(day.date) + mark),
                             UserText(Words().HijriText(day.hijri))};
        for (const auto& moment : day.Columns()) {
            cells << (moment ? UserText(Words().TimeIn(day, *moment)) : QString());
        }
        return cells;
    }

    /// Each column has room for its widest text, in bold as any row may be.
    std::vector<double> Widths() {
        UseFont(kTextSize, true);
        const QFontMetricsF metrics(painter_.font());
        std::vector<double> needs(static_cast<std::size_t>(Heads().size()), 0.0);
        const auto take = [&](const QStringList& texts) {
            for (std::size_t column = 0; column < needs.size(); ++column) {
                const QString& text = texts[static_cast<qsizetype>(column)];
                needs[column] = std::max(needs[column], metrics.horizontalAdvance(text));
            }
        };
        take(Heads());
        for (const TimetableDay& day : days_) {
            take(Cells(day));
        }
        for (double& need : needs) {
            need += (kCellStart + kCellEnd) * point_;
        }
        return ColumnWidths(needs, SharesOf(needs.size()), area_.width());
    }

    void WriteRow(const QStringList& texts, double height, const QColor& colour = kInk) {
        for (qsizetype column = 0; column < texts.size(); ++column) {
            WriteFitted(Cell(static_cast<std::size_t>(column), height), texts[column], colour);
        }
    }

    void DrawColumnHeads() {
        widths_ = Widths();
        const double height = LineHeight(kTextSize) * 1.2;
        WriteRow(Heads(), height, kAccent);
        top_ += height;
        DrawRule(kAccent, 1.0);
    }

    void DrawDay(const TimetableDay& day, double height) {
        const bool friday = Weekday(day.date) == kFriday;
        const bool today = day.date == year_.today;
        const QRectF row(area_.left(), top_, area_.width(), height);
        if (friday) {
            painter_.fillRect(row, kShade);
        }
        UseFont(kTextSize, friday || today);
        WriteRow(Cells(day), height);
        top_ += height;
        DrawRule(kRule, 0.4);
        if (today) {
            painter_.setPen(QPen(kAccent, 1.4 * point_));
            painter_.setBrush(Qt::NoBrush);
            painter_.drawRect(row);
        }
    }

    void DrawFootnotes() {
        top_ += LineHeight(kTextSize) / 4.0;
        for (const TimetableDay& day : days_) {
            if (day.change != DaylightChange::kNone) {
                const bool begins = day.change == DaylightChange::kBegins;
                WriteLine(QStringLiteral("* ") +
                              UserText(std::to_string(CivilFromDate(day.date).day)) +
                              UserText(Words().colon +
                                       (begins ? Words().daylightBegins : Words().daylightEnds)),
                          kTextSize, false);
            }
        }
        for (const std::string& note : NotesOfDays(year_.table, days_)) {
            WriteLine(UserText(note), kTextSize, false);
        }
    }

    QPainter& painter_;
    QRectF area_;
    double point_;  // pixels of the device
    const PrintedYear& year_;
    int month_;
    std::span<const TimetableDay> days_;
    std::vector<double> widths_;  // of the columns, pixels
    double top_ = area_.top();    // where the next line begins
    double baseline_ = 0.0;       // below the middle of a line
};

}  // namespace

void DrawMonthPage(QPainter& painter, const QRectF& area, double dotsPerInch,
                   const PrintedYear& year, int month) {
    painter.save();
    MonthPage(painter, area, dotsPerInch, year, month).Draw();
    painter.restore();
}

}  // namespace horavex
