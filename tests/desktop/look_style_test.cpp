#include "desktop/look/look_style.h"

#include <gtest/gtest.h>

#include <QApplication>
#include <QCheckBox>
#include <QComboBox>
#include <QDialog>
#include <QDialogButtonBox>
#include <QGroupBox>
#include <QLabel>
#include <QLineEdit>
#include <QListWidget>
#include <QMenu>
#include <QPainter>
#include <QPlainTextEdit>
#include <QProxyStyle>
#include <QPushButton>
#include <QRadioButton>
#include <QScrollBar>
#include <QSlider>
#include <QSpinBox>
#include <QStyleOption>
#include <QTabBar>
#include <QVBoxLayout>
#include <algorithm>
#include <ranges>

#include "desktop/look/contrast.h"
#include "desktop/look/measures.h"
#include "desktop/look/menu_parts.h"
#include "desktop/scoped_look.h"

namespace horavex::look {
namespace {

TEST(LookStyle, LayoutsThatAskForNothingLieOnTheGrid) {
    QWidget window;
    auto* inner = new QWidget(&window);
    auto* outer = new QVBoxLayout(&window);
    outer->addWidget(inner);
    const QVBoxLayout layout(inner);
    EXPECT_EQ(outer->contentsMargins(),
              QMargins(kWindowMargin, kWindowMargin, kWindowMargin, kWindowMargin));
    EXPECT_EQ(layout.contentsMargins(), QMargins(kMargin, kMargin, kMargin, kMargin));
    EXPECT_EQ(outer->spacing(), kSpacing);
}

TEST(LookStyle, ButtonsOfADialogueAreToldByTheirWordsAlone) {
    const QDialogButtonBox box(QDialogButtonBox::Ok | QDialogButtonBox::Cancel);
    EXPECT_TRUE(box.button(QDialogButtonBox::Ok)->icon().isNull());
    EXPECT_TRUE(box.button(QDialogButtonBox::Cancel)->icon().isNull());
}

TEST(LookStyle, WordsOfAButtonKeepOffItsEdges) {
    QPushButton button(QStringLiteral("Wiederholungen im Kalender"));
    button.ensurePolished();
    const int words = button.fontMetrics().horizontalAdvance(button.text());
    EXPECT_GE(button.sizeHint().width(), words + kButtonPadding + 8);
}

TEST(LookStyle, BoxesAndSignsGrowWithTheirWords) {
    for (const auto metric :
         {QStyle::PM_IndicatorWidth, QStyle::PM_IndicatorHeight, QStyle::PM_ExclusiveIndicatorWidth,
          QStyle::PM_ExclusiveIndicatorHeight, QStyle::PM_ButtonIconSize}) {
        QCheckBox box;
        QFont font = box.font();
        font.setPixelSize(12);
        box.setFont(font);
        const int usual = box.style()->pixelMetric(metric, nullptr, &box);
        font.setPixelSize(30);
        box.setFont(font);
        EXPECT_GE(box.style()->pixelMetric(metric, nullptr, &box), 30);
        EXPECT_LE(usual, 16);
    }
}

TEST(LookStyle, CellsOfATableKeepApart) {
    EXPECT_EQ(QApplication::style()->pixelMetric(QStyle::PM_FocusFrameHMargin), kCellMargin);
}

/// The strongest contrast to the ground of the window in a column of the widget's picture.
double EdgeOf(QWidget& widget) {
    const QImage picture = widget.grab().toImage();
    const QColor ground = widget.palette().color(QPalette::Window);
    double strongest = 1.0;
    for (int x = 0; x < 3; ++x) {
        strongest =
            std::max(strongest, Contrast(picture.pixelColor(x, widget.height() / 2), ground));
    }
    return strongest;
}

TEST(LookStyle, IsNotWornOverAStyleThatMayPaintInColoursOfItsOwn) {
    const auto* worn = qobject_cast<QProxyStyle*>(QApplication::style());
    ASSERT_NE(worn, nullptr);
    EXPECT_EQ(worn->baseStyle()->name(), "fusion");
}

/// What stands beside an entry of a menu on ground of a colour, where words are white, or black
/// while it is pointed at.
QImage MarkOfEntry(QStyle::State state, const QColor& ground) {
    QMenu menu;
    QImage picture(16, 16, QImage::Format_RGB32);
    picture.fill(ground);
    QStyleOptionButton mark;
    mark.rect = picture.rect();
    mark.palette.setColor(QPalette::Text, Qt::white);
    mark.palette.setColor(QPalette::HighlightedText, Qt::black);
    mark.state = state;
    QPainter painter(&picture);
    menu.style()->drawPrimitive(QStyle::PE_IndicatorCheckBox, &mark, &painter, &menu);
    return picture;
}

TEST(LookStyle, ChosenEntryOfAMenuHasAMarkAndNoBox) {
    for (const bool chosen : {false, true}) {
        const QImage picture =
            MarkOfEntry(chosen ? QStyle::State_On : QStyle::State_None, Qt::black);
        const auto isDrawn = [&](int x, int y) { return picture.pixelColor(x, y) != Qt::black; };
        EXPECT_EQ(isDrawn(6, 11), chosen);
        EXPECT_FALSE(isDrawn(1, 1) || isDrawn(14, 1) || isDrawn(1, 14));
    }
}

TEST(LookStyle, MarkOfAnEntryThatIsPointedAtHasTheColourOfItsWords) {
    const QImage picture = MarkOfEntry(QStyle::State_On | QStyle::State_Selected, Qt::yellow);
    EXPECT_EQ(picture.pixelColor(6, 11), Qt::black);
}

TEST(LookStyle, WhatCannotBeUsedIsWrittenOnce) {
    EXPECT_EQ(QApplication::style()->styleHint(QStyle::SH_EtchDisabledText), 0);
}

/// How many pixels the writing of an entry is wide.
int WritingOf(QMenu& menu, QAction& entry) {
    constexpr int kFrame = 4;
    const QImage shown = menu.grab(menu.actionGeometry(&entry)).toImage();
    int first = shown.width();
    int last = 0;
    for (int x = kFrame; x < shown.width() - kFrame; ++x) {
        for (int y = kFrame; y < shown.height() - kFrame; ++y) {
            if (qGray(shown.pixel(x, y)) < 128) {
                first = std::min(first, x);
                last = x;
            }
        }
    }
    return last - first + 1;
}

TEST(LookStyle, MenusAreAsWideAsTheirWordsAtEverySizeOfTexts) {
    const ScopedLook look(Theme::kLight);
    for (const double scale : {1.0, 1.5, 2.0, 3.0}) {
        QMenu menu;
        QFont font = menu.font();
        font.setPointSizeF(font.pointSizeF() * scale);
        menu.setFont(font);
        const QString words = QStringLiteral("Help Index");
        QAction* entry = menu.addAction(words);
        menu.adjustSize();
        const int whole = QFontMetrics(font).tightBoundingRect(words).width();
        EXPECT_NEAR(WritingOf(menu, *entry), whole, 2) << scale;
    }
}

TEST(LookStyle, ChoiceRunsInTheDirectionOfItsBox) {
    const auto shown = [](const QString& text) {
        QComboBox box;
        box.setLayoutDirection(Qt::RightToLeft);
        box.addItem(text);
        box.resize(300, 30);
        return box.grab().toImage();
    };
    const QString text = QStringLiteral("هيئة المساحة (المعتادة في Egypt)");
    EXPECT_EQ(shown(text), shown(QChar(0x2067) + text + QChar(0x2069)));
}

TEST(LookStyle, DefaultButtonHasAnEdgeOfWhatIsMarked) {
    for (const Theme theme :
         {Theme::kLight, Theme::kDark, Theme::kContrast, Theme::kLightContrast}) {
        const ScopedLook look(theme);
        QDialog window;
        QPushButton button(&window);
        button.setDefault(true);
        const QImage picture = button.grab().toImage();
        EXPECT_EQ(picture.pixelColor(0, button.height() / 2), ColourOf(theme, Role::kMarked));
    }
}

/// What a style draws of a button or a box with and without the keyboard.
QImage PictureOf(QStyle::PrimitiveElement element, bool hasFocus) {
    QImage picture(60, 30, QImage::Format_RGB32);
    picture.fill(QApplication::palette().color(QPalette::Window));
    QStyleOptionButton button;
    QStyleOptionFrame frame;
    QStyleOption& option = element == QStyle::PE_FrameLineEdit ? static_cast<QStyleOption&>(frame)
                                                               : static_cast<QStyleOption&>(button);
    option.rect = picture.rect();
    option.palette = QApplication::palette();
    option.state = QStyle::State_Enabled | QStyle::State_Active | QStyle::State_Raised;
    option.state.setFlag(QStyle::State_HasFocus, hasFocus);
    QPainter painter(&picture);
    QApplication::style()->drawPrimitive(element, &option, &painter);
    return picture;
}

TEST(LookStyle, FocusIsARingThatIsSeenBesideAnEdge) {
    for (const Theme theme :
         {Theme::kLight, Theme::kDark, Theme::kContrast, Theme::kLightContrast}) {
        const ScopedLook look(theme);
        for (const auto element : {QStyle::PE_PanelButtonCommand, QStyle::PE_FrameLineEdit}) {
            const auto inside = [&](bool hasFocus) {
                return PictureOf(element, hasFocus).pixelColor(1, 15);
            };
            EXPECT_GE(Contrast(inside(true), inside(false)), 3.0);
        }
    }
}

TEST(LookStyle, FocusOfATextIsTheWholeRing) {
    for (const Theme theme :
         {Theme::kLight, Theme::kDark, Theme::kContrast, Theme::kLightContrast}) {
        const ScopedLook look(theme);
        QWidget window;
        QPlainTextEdit text(&window);
        window.show();
        QApplication::setActiveWindow(&window);
        text.setFocus();
        const QImage picture = text.grab().toImage();
        for (const QPoint& dot : {QPoint(1, 50), QPoint(text.width() - 2, 50), QPoint(50, 1),
                                  QPoint(50, text.height() - 2)}) {
            EXPECT_EQ(picture.pixelColor(dot), ColourOf(theme, Role::kMarked));
        }
        text.clearFocus();
        EXPECT_EQ(text.grab().toImage().pixelColor(1, 50), ColourOf(theme, Role::kField));
    }
}

TEST(LookStyle, EdgesAreSeenOnDarkGround) {
    for (const Theme theme : {Theme::kDark, Theme::kContrast, Theme::kLightContrast}) {
        const ScopedLook look(theme);
        QWidget window;
        QLineEdit box(&window);
        QPushButton button(&window);
        EXPECT_GE(EdgeOf(box), 3.0);
        EXPECT_GE(EdgeOf(button), 3.0);
    }
}

/// The contrast between the lightest and the darkest dot of a picture.
double ContrastIn(const QImage& picture) {
    QColor lightest = picture.pixelColor(0, 0);
    QColor darkest = lightest;
    for (int y = 0; y < picture.height(); ++y) {
        for (int x = 0; x < picture.width(); ++x) {
            const QColor dot = picture.pixelColor(x, y);
            lightest = Contrast(dot, Qt::black) > Contrast(lightest, Qt::black) ? dot : lightest;
            darkest = Contrast(dot, Qt::white) > Contrast(darkest, Qt::white) ? dot : darkest;
        }
    }
    return Contrast(lightest, darkest);
}

class SignsOfTheme : public testing::TestWithParam<Theme> {
protected:
    /// Of a part of a widget, without its edge.
    static double Within(QWidget& widget, const QRect& part) {
        constexpr int kEdge = 3;
        widget.resize(widget.sizeHint());
        return ContrastIn(widget.grab(part.adjusted(kEdge, kEdge, -kEdge, -kEdge)).toImage());
    }

    template <class Option, class Widget>
    static QRect PartOf(const Widget& widget, QStyle::ComplexControl control,
                        QStyle::SubControl part) {
        Option option;
        option.initFrom(&widget);
        option.subControls = QStyle::SC_All;
        return widget.style()->subControlRect(control, &option, part, &widget);
    }

    const ScopedLook look{GetParam()};
    QWidget window;
};

TEST_P(SignsOfTheme, MarksOfBoxesAreSeen) {
    for (QAbstractButton* box : std::initializer_list<QAbstractButton*>{
             new QCheckBox(&window), new QRadioButton(&window)}) {
        box->setCheckable(true);
        box->setChecked(true);
        box->resize(box->sizeHint());
        EXPECT_GE(Within(*box, box->rect()), 3.0) << box->metaObject()->className();
    }
}

TEST_P(SignsOfTheme, ArrowsAreSeen) {
    QComboBox combo(&window);
    combo.resize(combo.sizeHint());
    EXPECT_GE(Within(combo, PartOf<QStyleOptionComboBox>(combo, QStyle::CC_ComboBox,
                                                         QStyle::SC_ComboBoxArrow)),
              3.0);
    QSpinBox spin(&window);
    spin.resize(spin.sizeHint());
    const QRect arrows(spin.width() - 16, 0, 16, spin.height());
    EXPECT_GE(Within(spin, arrows), 3.0);
}

TEST_P(SignsOfTheme, TicksOfASliderAreSeen) {
    if (GetParam() == Theme::kLight) {
        return;  // the toolkit's own
    }
    for (const auto orientation : {Qt::Horizontal, Qt::Vertical}) {
        QSlider slider(orientation, &window);
        slider.setTickPosition(QSlider::TicksBothSides);
        slider.resize(slider.sizeHint());
        const QImage picture = slider.grab().toImage();
        const bool goesAcross = orientation == Qt::Horizontal;
        const QImage upper = goesAcross ? picture.copy(0, 0, picture.width(), 2)
                                        : picture.copy(0, 0, 2, picture.height());
        const QImage lower = goesAcross ? picture.copy(0, picture.height() - 2, picture.width(), 2)
                                        : picture.copy(picture.width() - 2, 0, 2, picture.height());
        EXPECT_GE(ContrastIn(upper), 3.0);
        EXPECT_GE(ContrastIn(lower), 3.0);
    }
}

TEST_P(SignsOfTheme, WhatCannotBeUsedHasAnEdgeToo) {
    if (GetParam() == Theme::kLight) {
        return;
    }
    QSpinBox spin(&window);
    spin.setEnabled(false);
    EXPECT_GE(EdgeOf(spin), 3.0);
    QTabBar tabs(&window);
    tabs.addTab(QStringLiteral("one"));
    tabs.resize(tabs.sizeHint());
    EXPECT_GE(EdgeOf(tabs), 3.0);
}

TEST_P(SignsOfTheme, GroupsHaveFrames) {
    if (GetParam() == Theme::kLight) {
        return;
    }
    QGroupBox group(QStringLiteral("group"), &window);
    group.resize(120, 80);
    EXPECT_GE(EdgeOf(group), 3.0);
}

TEST_P(SignsOfTheme, HandleOfAScrollBarHasAnEdgeAllAround) {
    QScrollBar bar(Qt::Horizontal, &window);
    bar.resize(120, 16);
    const QImage picture = bar.grab().toImage();
    const auto hasEdge = [&](int y) {
        return std::ranges::any_of(std::views::iota(0, picture.width()), [&](int x) {
            return picture.pixelColor(x, y) == ColourOf(GetParam(), Role::kEdge);
        });
    };
    EXPECT_TRUE(hasEdge(0));
    EXPECT_TRUE(hasEdge(picture.height() - 1));
}

TEST_P(SignsOfTheme, ChosenTabHasALineWithoutTheKeyboardToo) {
    QTabBar tabs(&window);
    tabs.addTab(QStringLiteral("one"));
    tabs.addTab(QStringLiteral("two"));
    tabs.resize(tabs.sizeHint());
    const QImage picture = tabs.grab().toImage();
    const auto isMarked = [&](int tab) {
        const QRect room = tabs.tabRect(tab);
        for (int y = room.top(); y < room.top() + 6; ++y) {
            if (picture.pixelColor(room.center().x(), y) == ColourOf(GetParam(), Role::kMarked)) {
                return true;
            }
        }
        return false;
    };
    EXPECT_TRUE(isMarked(0));
    EXPECT_FALSE(isMarked(1));
}

TEST_P(SignsOfTheme, WordsOfAButtonThatCannotBeUsedAreSeen) {
    QPushButton button(QStringLiteral("MMMM"), &window);
    button.setEnabled(false);
    EXPECT_GE(Within(button, QRect(QPoint(), button.sizeHint())), 3.0);
}

/// A menu of two groups.
class TwoGroups : public QMenu {
public:
    explicit TwoGroups(QWidget* parent) : QMenu(parent) {
        addAction(QStringLiteral("one"));
        line_ = addSeparator();
        addAction(QStringLiteral("two"));
    }

    void ExpectLines(double least) {
        adjustSize();
        const QImage picture = grab().toImage();
        const QColor ground = picture.pixelColor(width() / 2, actionGeometry(line_).top() - 1);
        const QPoint line = actionGeometry(line_).center();
        EXPECT_GE(Contrast(picture.pixelColor(line), ground), least);
        EXPECT_GE(Contrast(picture.pixelColor(0, height() / 2), ground), least);
    }

private:
    QAction* line_;
};

TEST_P(SignsOfTheme, MenusHaveAFrameAndLinesBetweenTheirGroups) {
    TwoGroups(&window).ExpectLines(3.0);
}

TEST_P(SignsOfTheme, LinesOfAMenuInItsOwnColoursAreItsOwn) {
    TwoGroups menu(&window);
    menu.setPalette(QPalette(Qt::darkBlue));
    menu.setProperty(kMenuEdge, QColor(Qt::white));
    menu.ExpectLines(10.0);
}

INSTANTIATE_TEST_SUITE_P(Themes, SignsOfTheme,
                         testing::Values(Theme::kLight, Theme::kDark, Theme::kContrast,
                                         Theme::kLightContrast));

/// What a bar from right to left paints of its text in its left and its right half.
class ProgressText : public QWidget {
public:
    explicit ProgressText(int progress) {
        bar_.initFrom(this);
        bar_.rect = QRect(0, 0, 200, 24);
        bar_.direction = Qt::RightToLeft;
        bar_.maximum = 100;
        bar_.progress = progress;
        bar_.text = "MMMMMMMM";
        bar_.textVisible = true;
        picture_.fill(Qt::transparent);
        QPainter painter(&picture_);
        style()->drawControl(QStyle::CE_ProgressBarLabel, &bar_, &painter, this);
    }

    bool Has(QPalette::ColorRole role, int left) const {
        for (int y = 0; y < picture_.height(); ++y) {
            for (int x = left; x < left + 90; ++x) {
                if (picture_.pixelColor(x, y) == palette().color(role)) {
                    return true;
                }
            }
        }
        return false;
    }

private:
    QStyleOptionProgressBar bar_;
    QImage picture_{200, 24, QImage::Format_ARGB32};
};

TEST(LookStyle, TextOfAFullBarIsThatOfItsColourFromRightToLeftToo) {
    const ProgressText full(100);
    EXPECT_TRUE(full.Has(QPalette::HighlightedText, 0));
    EXPECT_TRUE(full.Has(QPalette::HighlightedText, 110));
    EXPECT_FALSE(full.Has(QPalette::Text, 0));
}

TEST(LookStyle, BarFromRightToLeftIsDoneAtTheRightFirst) {
    const ProgressText half(50);
    EXPECT_TRUE(half.Has(QPalette::HighlightedText, 110));
    EXPECT_FALSE(half.Has(QPalette::HighlightedText, 0));
    EXPECT_TRUE(half.Has(QPalette::Text, 0));
    EXPECT_FALSE(half.Has(QPalette::Text, 110));
}

bool IsDark(const QImage& picture, int x, int y) {
    return picture.pixelColor(x, y).lightness() < 128;
}

/// Where a picture has its last dark dot, line by line of some text.
std::vector<int> RightEdges(const QImage& picture) {
    std::vector<int> edges;
    int edge = -1;
    for (int y = 0; y < picture.height(); ++y) {
        int last = picture.width() - 1;
        while (last >= 0 && !IsDark(picture, last, y)) {
            --last;
        }
        if (last < 0 && edge >= 0) {
            edges.push_back(edge);
            edge = -1;
        }
        edge = std::max(edge, last);
    }
    return edges;
}

TEST(LookStyle, LinesFromTheRightBeginAtOneEdge) {
    QLabel label(QStringLiteral("\u0635\u0644\u0627\u0629 ").repeated(12).trimmed());
    label.setLayoutDirection(Qt::RightToLeft);
    label.setWordWrap(true);
    label.resize(120, 200);
    const std::vector<int> edges = RightEdges(label.grab().toImage());
    ASSERT_GE(edges.size(), 3U);
    EXPECT_THAT(edges, testing::Each(edges.front()));
}

/// The rows of dots of the first sign in a picture, which begins in its first dark column.
std::pair<int, int> RowsOfFirstSign(const QImage& picture) {
    constexpr int kNarrow = 4;  // dots, less than any sign and the blank behind it
    int left = picture.width();
    for (int y = 0; y < picture.height(); ++y) {
        for (int x = 0; x < left; ++x) {
            left = IsDark(picture, x, y) ? x : left;
        }
    }
    EXPECT_LT(left + kNarrow, picture.width());
    int first = picture.height();
    int last = -1;
    for (int y = 0; y < picture.height(); ++y) {
        for (int x = left; x < std::min(left + kNarrow, picture.width()); ++x) {
            if (IsDark(picture, x, y)) {
                first = std::min(first, y);
                last = y;
            }
        }
    }
    return {first, last};
}

/// A one and a letter of Bengali, from another family of letters.
const QString kOneAndLetter = QStringLiteral("1 \u0995");

TEST(LookStyle, LabelsOfARowHaveOneBaselineInEveryScript) {
    const auto drawn = [](const QString& text) {
        QLabel label(text);
        label.resize(80, 40);
        return RowsOfFirstSign(label.grab().toImage());
    };
    EXPECT_EQ(drawn(kOneAndLetter), drawn("1 k"));
}

TEST(LookStyle, CellsOfARowHaveOneBaselineInEveryScript) {
    const auto drawn = [](const QString& text) {
        QListWidget list;
        list.setFrameShape(QFrame::NoFrame);
        (new QListWidgetItem(text, &list))->setSizeHint({80, 40});
        list.resize(80, 60);
        list.show();
        return RowsOfFirstSign(list.viewport()->grab().toImage());
    };
    EXPECT_EQ(drawn(kOneAndLetter), drawn("1 k"));
}

TEST(LookStyle, ChoiceThatIsTooLongEndsInPoints) {
    const auto drawn = [](const QString& choice) {
        QComboBox box;
        box.addItem(choice);
        box.resize(80, 24);
        return box.grab().toImage();
    };
    EXPECT_EQ(drawn("Egyptian General Authority of Survey"), drawn("Egyptian General Committee"));
    EXPECT_NE(drawn("Egypt"), drawn("Egyptian General Committee"));
}

}  // namespace
}  // namespace horavex::look
