#include "terminal/screen/desk.h"

#include <gmock/gmock.h>

#include <string>
#include <vector>

namespace horavex {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

using Words = std::vector<std::string>;

/// Notes when it is drawn and what it is told, and has a cursor if it is to have one.
class NotingSheet : public Sheet {
public:
    enum class Kind { kUsual, kModal, kInFront };

    NotingSheet(std::string name, Words& drawn, Words& pressed, Kind kind = Kind::kUsual)
        : name_(std::move(name)), drawn_(drawn), pressed_(pressed), kind_(kind) {}

    void Draw(Cells& screen) override {
        drawn_.push_back(name_);
        if (cursor) {
            screen.SetCursor(cursor);
        }
    }
    void Press(const KeyPress&) override { pressed_.push_back(name_); }
    bool IsModal() const override { return kind_ == Kind::kModal; }
    bool StaysInFront() const override { return kind_ == Kind::kInFront; }

    std::optional<CellPlace> cursor;

private:
    std::string name_;
    Words& drawn_;
    Words& pressed_;
    Kind kind_;
};

using Kind = NotingSheet::Kind;

struct DeskTest : testing::Test {
    DeskTest() { desk.SetSize(24, 80); }

    std::shared_ptr<NotingSheet> Make(const std::string& name, Kind kind = Kind::kUsual) {
        return std::make_shared<NotingSheet>(name, drawn, pressed, kind);
    }

    /// The sheets as they are drawn, what lies below first.
    Words Order() {
        drawn.clear();
        desk.Invalidate();
        desk.Draw();
        return drawn;
    }

    Words drawn;
    Words pressed;
    int waiting = 0;  // turns of the event loop that were asked for
    Cells shown{0, 0};
    Desk desk{[this](const Cells& cells) { shown = cells; },
              [this](const std::function<void()>&) { ++waiting; }};
    std::shared_ptr<NotingSheet> face = Make("face");
    std::shared_ptr<NotingSheet> window = Make("window");
    std::shared_ptr<NotingSheet> box = Make("box", Kind::kModal);
    std::shared_ptr<NotingSheet> card = Make("card", Kind::kInFront);
};

TEST_F(DeskTest, SheetsAreDrawnFromTheLowestUpAndTheOneThatStaysInFrontLast) {
    for (const auto& sheet : {card, face, window, box}) {
        desk.BringUp(sheet);
    }
    EXPECT_THAT(Order(), ElementsAre("face", "window", "box", "card"));
    desk.BringUp(face);
    EXPECT_THAT(Order(), ElementsAre("window", "box", "face", "card")) << "each is there once";
    desk.TakeAway(*box);
    EXPECT_THAT(Order(), ElementsAre("window", "face", "card"));
}

TEST_F(DeskTest, KeysGoToTheLastOneDrawn) {
    desk.BringUp(face);
    desk.BringUp(window);
    desk.Press({KeyCode::kEnter});
    desk.BringUp(card);
    desk.Press({KeyCode::kEnter});
    desk.PressBelow(*card, {KeyCode::kEnter});
    EXPECT_THAT(pressed, ElementsAre("window", "card", "window"));
    EXPECT_EQ(desk.Front(), window.get());
}

TEST_F(DeskTest, F6TurnsThroughWhatNoModalOneKeepsAway) {
    desk.BringUp(face);
    desk.BringUp(window);
    desk.BringUp(card);
    desk.Press({KeyCode::kF6});
    EXPECT_THAT(Order(), ElementsAre("window", "face", "card"));
    desk.BringUp(box);
    desk.BringUp(window);
    desk.Press({KeyCode::kF6});
    EXPECT_THAT(Order(), ElementsAre("face", "window", "box", "card"));
    desk.Press({KeyCode::kF6});
    EXPECT_THAT(Order(), ElementsAre("face", "window", "box", "card")) << "the box alone";
}

TEST_F(DeskTest, CursorIsThatOfTheLastOneDrawn) {
    desk.BringUp(face);
    desk.BringUp(window);
    face->cursor = CellPlace{3, 4};
    Order();
    EXPECT_EQ(shown.Cursor(), std::nullopt);
    desk.BringUp(face);
    Order();
    EXPECT_EQ(shown.Cursor(), (CellPlace{3, 4}));
}

TEST_F(DeskTest, ManyChangesAreDrawnOnce) {
    desk.Draw();
    waiting = 0;
    desk.BringUp(face);
    desk.BringUp(window);
    desk.Invalidate();
    EXPECT_EQ(waiting, 1);
    EXPECT_THAT(drawn, IsEmpty());
    desk.Draw();
    desk.Draw();
    EXPECT_THAT(drawn, ElementsAre("face", "window"));
}

TEST_F(DeskTest, ScreenThatIsTooSmallDrawsNoneAndTakesNoKeys) {
    desk.BringUp(face);
    desk.SetSize(15, 80);
    EXPECT_THAT(Order(), IsEmpty());
    desk.Press({KeyCode::kEnter});
    EXPECT_THAT(pressed, IsEmpty());
    desk.SetSize(16, 40);
    EXPECT_THAT(Order(), ElementsAre("face"));
}

}  // namespace
}  // namespace horavex
