#include <QScrollBar>
#include <QTableWidget>
#include <QWheelEvent>

#include "desktop/form_window_fixture.h"
#include "desktop/scoped_look.h"
#include "forms/grid.h"

namespace horavex {
namespace {

using testing::ElementsAre;

struct GridForm : Form {
    GridForm() : Form("GridForm", {.width = 6000, .height = 4500}) {}
    Grid grid{*this, "grid"};
};

class GridBinderTest : public testing::Test {
protected:
    GridBinderTest() {
        form.grid.onPage = [this](int step) { steps.push_back(step); };
        form.grid.heads = {"Day", "Fajr"};
        form.grid.rows = {{{"1", "05:00"}, false, false},
                          {{"2", "05:01"}, true, false},
                          {{"3", "05:02"}, false, true}};
        form.Show();
        QApplication::processEvents();
    }
    ~GridBinderTest() override {
        form.Unload();
        QApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    }

    QTableWidget& Table() { return *windows.Find(&form)->findChild<QTableWidget*>("grid"); }

    /// A month with today on its 28th day, in a table that is too low for it.
    void ShowMonth() {
        Table().resize(400, 200);
        form.grid.rows.assign(31, {{"x", "y"}, false, false});
        form.grid.rows[27].current = true;
        form.grid.Refresh();
        QApplication::processEvents();
    }

    void Wheel(int delta) {
        QWidget& target = *Table().viewport();
        const QPointF at(5.0, 5.0);
        QWheelEvent event(at, target.mapToGlobal(at), {}, {0, delta}, Qt::NoButton, Qt::NoModifier,
                          Qt::NoScrollPhase, false);
        QApplication::sendEvent(&target, &event);
    }

    void Press(int key) {
        QKeyEvent event(QEvent::KeyPress, key, Qt::NoModifier);
        QApplication::sendEvent(&Table(), &event);
    }

    static void Fill(QWidget& window) {
        auto* table = new QTableWidget(&window);
        table->setObjectName("grid");
        table->resize(400, 300);
    }

    TestPlatform platform;
    GridForm form;
    std::vector<int> steps;
    FormWindows windows{Layouts{{"GridForm", Fill}}};
};

TEST_F(GridBinderTest, ShowsHeadsAndTexts) {
    ASSERT_EQ(Table().rowCount(), 3);
    ASSERT_EQ(Table().columnCount(), 2);
    EXPECT_EQ(Table().horizontalHeaderItem(1)->text(), "Fajr");
    EXPECT_EQ(Table().item(2, 1)->text(), "05:02");
}

TEST_F(GridBinderTest, FiguresAndTheirHeadsStandAtTheEndOfTheirColumn) {
    form.grid.figures = {1};
    form.grid.Refresh();
    QApplication::processEvents();
    EXPECT_TRUE(Table().item(0, 0)->textAlignment() & Qt::AlignLeft);
    EXPECT_TRUE(Table().item(0, 1)->textAlignment() & Qt::AlignRight);
    EXPECT_TRUE(Table().horizontalHeaderItem(0)->textAlignment() & Qt::AlignLeft);
    EXPECT_TRUE(Table().horizontalHeaderItem(1)->textAlignment() & Qt::AlignRight);
}

TEST_F(GridBinderTest, HeadsTurnRoundWithTheirWindow) {
    form.grid.heads = {"يوم", "فجر"};
    form.grid.figures = {1};
    Table().setLayoutDirection(Qt::RightToLeft);
    form.grid.Refresh();
    QApplication::processEvents();
    EXPECT_TRUE(Table().horizontalHeaderItem(0)->textAlignment() & Qt::AlignRight);
    EXPECT_TRUE(Table().horizontalHeaderItem(1)->textAlignment() & Qt::AlignLeft);
}

TEST_F(GridBinderTest, RowsThatStandOutAreBoldAndThePresentOneIsColoured) {
    EXPECT_FALSE(Table().item(0, 0)->font().bold());
    EXPECT_TRUE(Table().item(1, 0)->font().bold());
    EXPECT_TRUE(Table().item(2, 0)->font().bold());
    EXPECT_EQ(Table().item(2, 0)->background(), Table().palette().highlight());
    EXPECT_NE(Table().item(1, 0)->background(), Table().palette().highlight());
}

TEST_F(GridBinderTest, PresentRowTakesTheColoursOfAnotherTheme) {
    for (const look::Theme theme : {look::Theme::kDark, look::Theme::kLight}) {
        const ScopedLook look(theme);
        QApplication::processEvents();
        EXPECT_EQ(Table().item(2, 0)->background().color(),
                  look::ColourOf(theme, look::Role::kMarked));
    }
}

TEST_F(GridBinderTest, ColumnsShareTheWidthButForOneThatNeedsMore) {
    Table().resize(600, 200);
    EXPECT_EQ(Table().columnWidth(0), Table().columnWidth(1));
    form.grid.rows[0].cells[1] = std::string(60, 'm');
    form.grid.Refresh();
    QApplication::processEvents();
    EXPECT_GT(Table().columnWidth(1), 300);
    EXPECT_LT(Table().columnWidth(0), 300);
}

TEST_F(GridBinderTest, ColumnsThatShareWhatWideOnesLeaveHaveWhatTheyNeed) {
    Table().resize(600, 200);
    form.grid.heads = {"1", "2", "3", "4"};
    form.grid.rows = {{{std::string(24, 'm'), std::string(12, 'm'), "x", "y"}}};
    form.grid.Refresh();
    QApplication::processEvents();
    const int needed = Table().fontMetrics().horizontalAdvance(QString(12, 'm'));
    ASSERT_GT(Table().columnWidth(0), 600 / 3);
    ASSERT_LT(needed, 600 / 4);
    EXPECT_GE(Table().columnWidth(1), needed);
    EXPECT_EQ(Table().columnWidth(2), Table().columnWidth(3));
    EXPECT_LT(Table().columnWidth(2), needed);
}

TEST_F(GridBinderTest, GoesToThePresentRowOfAPage) {
    EXPECT_EQ(Table().currentRow(), 2);
    ShowMonth();
    EXPECT_EQ(Table().currentRow(), 27);
    const QRect row = Table().visualItemRect(Table().item(27, 0));
    EXPECT_TRUE(Table().viewport()->rect().contains(row.center()));
}

TEST_F(GridBinderTest, StaysAtTheRowThatTheUserWentTo) {
    Press(Qt::Key_Up);
    form.grid.Refresh();
    QApplication::processEvents();
    EXPECT_EQ(Table().currentRow(), 1);
}

TEST_F(GridBinderTest, RowsOfAMonthKeepTheirHeightAndScroll) {
    ShowMonth();
    EXPECT_EQ(Table().rowHeight(0), 20);
    EXPECT_GT(Table().verticalScrollBar()->maximum(), 0);
}

TEST_F(GridBinderTest, RowsAreHigherWhereTheTextsAre) {
    const QFont usual = QApplication::font();
    QFont large = usual;
    large.setPointSize(30);
    QApplication::setFont(large);
    GridForm other;
    other.grid.heads = {"Day"};
    other.grid.rows = {{{"1"}, false, false}};
    other.Show();
    QApplication::processEvents();
    const auto& table = *windows.Find(&other)->findChild<QTableWidget*>("grid");
    EXPECT_GT(table.rowHeight(0), table.fontMetrics().height());
    other.Unload();
    QApplication::setFont(usual);
}

TEST_F(GridBinderTest, WheelScrollsATableThatHasRowsOutOfView) {
    ShowMonth();
    const int before = Table().verticalScrollBar()->value();
    Wheel(120);
    EXPECT_LT(Table().verticalScrollBar()->value(), before);
    EXPECT_THAT(steps, testing::IsEmpty());
}

TEST_F(GridBinderTest, FollowsItsControl) {
    form.grid.rows = {{{"9", "06:00"}, false, false}};
    form.grid.Refresh();
    QApplication::processEvents();
    ASSERT_EQ(Table().rowCount(), 1);
    EXPECT_EQ(Table().item(0, 0)->text(), "9");
    EXPECT_FALSE(Table().item(0, 0)->font().bold());
}

TEST_F(GridBinderTest, NotchOfTheWheelTurnsAPage) {
    Wheel(-120);
    Wheel(240);
    EXPECT_THAT(steps, ElementsAre(1, -2));
}

TEST_F(GridBinderTest, SmallMovementsOfATouchpadAddUp) {
    for (int i = 0; i < 5; ++i) {
        Wheel(-50);
    }
    EXPECT_THAT(steps, ElementsAre(1, 1));
}

TEST_F(GridBinderTest, PageKeysTurnThePage) {
    Press(Qt::Key_PageDown);
    Press(Qt::Key_PageUp);
    Press(Qt::Key_Down);
    EXPECT_THAT(steps, ElementsAre(1, -1));
}

}  // namespace
}  // namespace horavex
