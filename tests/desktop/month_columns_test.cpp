// Where the texts of a month's page stand, in every language and on both papers.

#include <QApplication>
#include <QPageSize>
#include <QPaintEngine>
#include <map>

#include "desktop/documents/month_page.h"
#include "lang/language_pack.h"
#include "lang/own_digits.h"
#include "store/around_options.h"
#include "support/program_copy.h"
#include "support/shipped_languages.h"
#include "timetables/sample_timetable.h"

namespace horavex {
namespace {

/// Keeps the pieces of text that are written, by their baselines, in whole pixels.
class TextKeeper : public QPaintEngine {
public:
    TextKeeper() : QPaintEngine(AllFeatures) {}

    bool begin(QPaintDevice*) override { return true; }
    bool end() override { return true; }
    void updateState(const QPaintEngineState&) override {}
    void drawPixmap(const QRectF&, const QPixmap&, const QRectF&) override {}
    void drawPath(const QPainterPath&) override {}
    void drawPolygon(const QPointF*, int, PolygonDrawMode) override {}
    void drawRects(const QRectF*, int) override {}
    void drawLines(const QLineF*, int) override {}
    Type type() const override { return User; }

    void drawTextItem(const QPointF& at, const QTextItem& item) override {
        const QString text = item.text();
        if (std::ranges::none_of(text, [](QChar sign) { return sign.isPrint(); })) {
            return;  // marks of direction
        }
        lines[qRound(at.y())].push_back({at.x(), at.x() + item.width(), text});
    }

    struct Piece {
        double left;
        double right;
        QString text;
    };
    std::map<int, std::vector<Piece>> lines;
};

/// A page that keeps texts, of so many pixels at 300 dots an inch.
class TextPage : public QPaintDevice {
public:
    explicit TextPage(QSize size) : size_(size) {}

    QPaintEngine* paintEngine() const override { return &keeper; }

    mutable TextKeeper keeper;

protected:
    int metric(PaintDeviceMetric metric) const override {
        switch (metric) {
            case PdmWidth:
                return size_.width();
            case PdmHeight:
                return size_.height();
            case PdmDpiX:
            case PdmDpiY:
            case PdmPhysicalDpiX:
            case PdmPhysicalDpiY:
                return kDots;
            default:
                return QPaintDevice::metric(metric);
        }
    }

private:
    static constexpr int kDots = 300;
    QSize size_;
};

struct MonthColumns : TimetableTest, testing::WithParamInterface<std::string> {
    MonthColumns() {
        CopyBuiltProgramFolder(platform.files);
        currentLanguage = GetParam();
        Daylight(90, 300);
    }

    /// No text of a page lies over another one or beyond the page.
    static void ExpectRoomForAll(const PrintedYear& year, QSize size, int month) {
        TextPage page(size);
        QPainter painter(&page);
        DrawMonthPage(painter, QRectF(QPointF(), size), 300.0, year, month);
        painter.end();
        ASSERT_GT(page.keeper.lines.size(), 28U);
        for (auto& [baseline, pieces] : page.keeper.lines) {
            std::ranges::sort(pieces, {}, &TextKeeper::Piece::left);
            double behind = -1.0;
            for (const auto& [left, right, text] : pieces) {
                EXPECT_GE(left, behind - 1.0) << month << ": " << text.toStdString();
                behind = right;
            }
            EXPECT_LE(behind, size.width() + 1)
                << month << ": " << pieces.back().text.toStdString();
        }
    }

    static void ExpectRoomOnBothPapers() {
        const Timetable table = TakeTimetable();
        const TimetableWords words = TakeTimetableWords();
        for (const auto paper : {QPageSize::A4, QPageSize::Letter}) {
            constexpr int kMargins = 354;  // twice 15 millimetres
            const QSize size = QPageSize(paper).sizePixels(300) - QSize(kMargins, kMargins);
            for (int month = 1; month <= 12; ++month) {
                ExpectRoomForAll({table, words, DateSerial(2026, month, 20)}, size, month);
            }
        }
    }
};

/// The texts of a line from the left. One in two scripts is written in pieces that touch; where one
/// column ran into the next, they would be one text too.
std::vector<TextKeeper::Piece> WholeTexts(std::vector<TextKeeper::Piece> pieces) {
    std::ranges::sort(pieces, {}, &TextKeeper::Piece::left);
    std::vector<TextKeeper::Piece> texts;
    for (const TextKeeper::Piece& piece : pieces) {
        if (!texts.empty() && piece.left < texts.back().right + 1.0) {
            texts.back().right = std::max(texts.back().right, piece.right);
            texts.back().text += piece.text;
        } else {
            texts.push_back(piece);
        }
    }
    return texts;
}

/// How far the columns of the thirty days stand from each other at least, in points.
double NarrowestGap(const TextKeeper& page) {
    double narrowest = 100.0;
    int days = 0;
    for (const auto& [baseline, pieces] : page.lines) {
        const std::vector<TextKeeper::Piece> texts = WholeTexts(pieces);
        days += texts.size() == 8 ? 1 : 0;
        for (std::size_t i = 1; texts.size() == 8 && i < texts.size(); ++i) {
            narrowest = std::min(narrowest, texts[i].left - texts[i - 1].right);
        }
    }
    EXPECT_GE(days, 30);
    return narrowest * 72.0 / 300.0;
}

TEST_P(MonthColumns, StandApart) {
    const Timetable table = TakeTimetable();
    const TimetableWords words = TakeTimetableWords();
    TextPage page(QPageSize(QPageSize::A4).sizePixels(300) - QSize(354, 354));
    QPainter painter(&page);
    DrawMonthPage(painter, QRectF(0, 0, page.width(), page.height()), 300.0,
                  {table, words, DateSerial(2026, 11, 20)}, 11);
    painter.end();
    EXPECT_GE(NarrowestGap(page.keeper), 9.0);
}

TEST_P(MonthColumns, HoldTheirTexts) {
    ExpectRoomOnBothPapers();
}

TEST_P(MonthColumns, HoldThemInTheDigitsOfTheLanguage) {
    ShowOwnDigits(true);
    ExpectRoomOnBothPapers();
}

TEST_P(MonthColumns, HoldThemBesideTheTimesAroundTheDay) {
    SaveOption(option::kAroundTheDay, 1);
    ExpectRoomOnBothPapers();
}

INSTANTIATE_TEST_SUITE_P(EachLanguage, MonthColumns, testing::ValuesIn(kShippedLanguages),
                         [](const auto& language) { return language.param; });

}  // namespace
}  // namespace horavex
