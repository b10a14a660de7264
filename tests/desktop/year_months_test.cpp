// The names below the chart of a year, in each language and with texts of both sizes.

#include <QApplication>
#include <QImage>
#include <ranges>

#include "desktop/form_window/canvas.h"
#include "desktop/language_and_size.h"
#include "desktop/shots/scenes.h"
#include "support/shipped_languages.h"
#include "windows/frm_month.h"

namespace horavex {
namespace {

constexpr int kNarrow = 720;  // pixels, in which "Septiembre" is wider than its month

class YearMonthsTest : public testing::TestWithParam<std::tuple<std::string, double>> {
protected:
    YearMonthsTest() {
        QFont font = usual_;
        font.setPointSizeF(font.pointSizeF() * std::get<1>(GetParam()));
        QApplication::setFont(font);
    }
    ~YearMonthsTest() override { QApplication::setFont(usual_); }

    static const TextRowStep& Months() {
        for (const DrawingStep& step : frmMonth->picYear.drawing) {
            if (const auto* row = std::get_if<TextRowStep>(&step)) {
                return *row;
            }
        }
        throw std::runtime_error("a chart without months");
    }

    /// Whether nothing is drawn right in front of a name.
    static bool IsFree(const QImage& image, const Point& name) {
        const Picture& picture = frmMonth->picYear;
        const int x = int(name.x * image.width() / picture.ScaleWidth()) - 2;
        const int top = int(name.y * image.height() / picture.ScaleHeight());
        const QColor paper = image.pixelColor(1, 1);
        return std::ranges::all_of(std::views::iota(top, image.height()),
                                   [&](int y) { return image.pixelColor(x, y) == paper; });
    }

private:
    const QFont usual_ = QApplication::font();
};

TEST_P(YearMonthsTest, NoNameRunsIntoTheNext) {
    const auto scene = std::ranges::find(Scenes(), "year", &Scene::name);
    Stage stage(std::get<0>(GetParam()), scene->setting, [&](const std::vector<QWidget*>& windows) {
        auto* chart = windows.back()->findChild<Canvas*>("picYear");
        chart->resize(kNarrow, chart->height());
        const QImage image = chart->grab().toImage();
        for (const TextRowStep::Entry& month : Months().entries) {
            EXPECT_TRUE(IsFree(image, month.at)) << month.text;
        }
    });
    scene->play(stage);
}

INSTANTIATE_TEST_SUITE_P(LanguagesAndTextSizes, YearMonthsTest,
                         testing::Combine(testing::ValuesIn(kShippedLanguages),
                                          testing::Values(1.0, 2.0)),
                         LanguageAndSize);

}  // namespace
}  // namespace horavex
