#include "forms/grid.h"

#include "forms/form.h"

namespace horavex {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

struct GridForm : Form {
    GridForm() : Form("GridForm") {}
    Grid grid{*this, "grid"};
};

class GridTest : public testing::Test {
protected:
    GridTest() {
        form.grid.onPage = [this](int step) { steps.push_back(step); };
        form.Show();
    }

    GridForm form;
    std::vector<int> steps;
};

TEST_F(GridTest, UserTurnsThePageEitherWay) {
    form.grid.UserPage(-1);
    form.grid.UserPage(2);
    EXPECT_THAT(steps, ElementsAre(-1, 2));
}

TEST_F(GridTest, DisabledGridTurnsNoPage) {
    form.grid.SetEnabled(false);
    form.grid.UserPage(1);
    EXPECT_THAT(steps, IsEmpty());
}

TEST_F(GridTest, GridWithoutAHandlerTurnsNoPage) {
    form.grid.onPage = nullptr;
    EXPECT_NO_THROW(form.grid.UserPage(1));
}

TEST_F(GridTest, TextsStayUntilTheFormUnloads) {
    form.grid.heads = {"Day"};
    form.grid.rows = {{{"1"}, true, false}};
    form.Hide();
    EXPECT_THAT(form.grid.rows, ElementsAre(Grid::Row{{"1"}, true, false}));
    form.Unload();
    EXPECT_THAT(form.grid.heads, IsEmpty());
    EXPECT_THAT(form.grid.rows, IsEmpty());
}

}  // namespace
}  // namespace horavex
