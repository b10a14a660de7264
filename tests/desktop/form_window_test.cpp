#include <QPointer>
#include <QTimer>
#include <QWindow>

#include "desktop/form_window_fixture.h"
#include "desktop/ports/qt_dialogs.h"

namespace horavex {
namespace {

using FormWindowLifeTest = FormWindowTest;

TEST_F(FormWindowLifeTest, WindowFollowsLoadShowHideAndUnload) {
    form.Load();
    Settle();
    ASSERT_NE(windows.Find(&form), nullptr);
    EXPECT_FALSE(Window().isVisible());
    form.Show();
    EXPECT_TRUE(Window().isVisible());
    EXPECT_EQ(Window().windowTitle(), "Kinds");
    form.Hide();
    Settle();
    EXPECT_FALSE(Window().isVisible());
    form.Unload();
    EXPECT_EQ(windows.Find(&form), nullptr);
}

TEST_F(FormWindowLifeTest, WindowsAreFoundByTheNameOfTheirForm) {
    EXPECT_EQ(windows.Find(std::string("KindsForm")), nullptr);
    form.Load();
    EXPECT_EQ(windows.Find(std::string("KindsForm")), windows.Find(&form));
}

TEST_F(FormWindowLifeTest, ChangesOfOneTurnShowTogetherInTheNext) {
    Show();
    form.label.SetCaption("first");
    form.label.SetCaption("second");
    EXPECT_EQ(Find<QLabel>("label").text(), "A label");
    Settle();
    EXPECT_EQ(Find<QLabel>("label").text(), "second");
}

/// Counts the repaints of a widget.
class PaintCounter : public QObject {
public:
    int paints = 0;

protected:
    bool eventFilter(QObject*, QEvent* event) override {
        paints += event->type() == QEvent::Paint ? 1 : 0;
        return false;
    }
};

TEST_F(FormWindowLifeTest, AHundredChangesPaintOnce) {
    Show();
    PaintCounter counter;
    Find<QLabel>("label").installEventFilter(&counter);
    for (int change = 0; change < 100; ++change) {
        form.label.SetCaption(std::to_string(change));
    }
    while (counter.paints == 0) {
        QApplication::processEvents(QEventLoop::WaitForMoreEvents);
    }
    Settle();
    EXPECT_EQ(counter.paints, 1);
}

TEST_F(FormWindowLifeTest, CloseBoxAsksTheFormAsAUser) {
    std::optional<CloseReason> reason;
    form.onCloseRequest = [&](CloseRequest& request) {
        reason = request.reason;
        request.cancel = true;
    };
    Show();
    Window().close();
    EXPECT_EQ(reason, CloseReason::kUser);
    EXPECT_TRUE(Window().isVisible());
    form.onCloseRequest = nullptr;
    Window().close();
    EXPECT_FALSE(form.IsLoaded());
}

TEST_F(FormWindowLifeTest, ButtonMayUnloadItsOwnForm) {
    Show();
    form.button.onClick = [this] { form.Unload(); };
    Click(Find<QPushButton>("button"));
    EXPECT_FALSE(form.IsLoaded());
    Settle();
    EXPECT_EQ(windows.Find(&form), nullptr);
}

TEST_F(FormWindowLifeTest, WindowStateGoesBothWays) {
    Show();
    form.SetWindowState(WindowState::kMinimized);
    Settle();
    EXPECT_TRUE(Window().isMinimized());
    Window().setWindowState(Qt::WindowNoState);
    EXPECT_EQ(form.State(), WindowState::kNormal);
    Window().setWindowState(Qt::WindowMaximized);
    EXPECT_EQ(form.State(), WindowState::kMaximized);
}

TEST_F(FormWindowLifeTest, MinimisedAndHiddenWindowComesBackNormal) {
    Show();
    form.SetWindowState(WindowState::kMinimized);
    form.Hide();
    Settle();
    form.SetWindowState(WindowState::kNormal);
    form.Show();
    EXPECT_TRUE(Window().isVisible());
    EXPECT_FALSE(Window().isMinimized());
}

TEST_F(FormWindowLifeTest, PlaceAndSizeGoBothWaysInTwips) {
    Show();
    form.SetLeft(1500);
    form.SetTop(750);
    form.SetWidth(9000);
    form.SetHeight(12000);
    Settle();
    EXPECT_EQ(Window().pos(), QPoint(100, 50));
    EXPECT_EQ(Window().size(), QSize(600, 800));
    Window().move(20, 40);
    Window().resize(620, 810);
    Settle();
    EXPECT_EQ(form.Left(), 300.0);
    EXPECT_EQ(form.Top(), 600.0);
    EXPECT_EQ(form.Width(), 9300.0);
    EXPECT_EQ(form.Height(), 12150.0);
}

TEST_F(FormWindowLifeTest, FormWithoutAPlaceComesUpOverItsOwner) {
    KindsForm owner;
    owner.SetLeft(6000);
    owner.SetTop(3000);
    owner.Show();
    form.Load();
    form.SetWidth(4500);
    form.SetHeight(4500);
    form.Show(&owner);
    const QPoint centre = windows.Find(&owner)->frameGeometry().center();
    constexpr int kFrame = 10;  // pixels, which may come around the window
    EXPECT_LE((Window().frameGeometry().center() - centre).manhattanLength(), kFrame);
    EXPECT_EQ(Window().windowHandle()->transientParent(), windows.Find(&owner)->windowHandle());
    owner.Unload();
}

TEST_F(FormWindowLifeTest, UserWhoActivatesTheWindowActivatesTheForm) {
    Show();
    form.Hide();
    form.Show();
    Settle();
    EXPECT_EQ(ActiveForm(), &form);
}

TEST_F(FormWindowLifeTest, ModalWindowBlocksUntilItIsHiddenWhileTimersGoOn) {
    int ticks = 0;
    bool wasModal = false;
    form.timer.onTimer = [&] {
        wasModal = Window().isModal() && Window().isVisible();
        if (++ticks == 3) {
            form.Hide();
        }
    };
    form.Load();
    form.timer.SetEnabled(true);
    form.ShowModal();
    EXPECT_EQ(ticks, 3);
    EXPECT_TRUE(wasModal);
    EXPECT_FALSE(form.Visible());
}

TEST_F(FormWindowLifeTest, ModalWindowThatUnloadsEndsItsLoop) {
    form.onLoad = [this] { QTimer::singleShot(0, [this] { form.Unload(); }); };
    form.ShowModal();
    EXPECT_FALSE(form.IsLoaded());
}

TEST_F(FormWindowLifeTest, FormPaintsItsOwnDrawing) {
    form.onPaint = [this] {
        form.drawing = {PolygonStep{{{0, 0}, {form.ScaleWidth(), 0}, {0, form.ScaleHeight()}},
                                    {0, 0, 250},
                                    {{0, 0, 250}, 1}}};
    };
    Show();
    const QImage image = Window().grab().toImage();
    EXPECT_EQ(image.pixelColor(2, 2), QColor(0, 0, 250));
    EXPECT_NE(image.pixelColor(image.width() - 3, image.height() - 3), QColor(0, 0, 250));
}

/// Enter and Escape as a layout arranges them.
struct FormWindowKeysTest : FormWindowTest {
    FormWindowKeysTest() {
        form.button.onClick = [this] { ++clicks; };
        Show();
    }

    int clicks = 0;
};

TEST_F(FormWindowKeysTest, EnterPressesTheDefaultButton) {
    Key(Find<QLineEdit>("text"), Qt::Key_Return);
    EXPECT_EQ(clicks, 0);
    Find<QPushButton>("button").setDefault(true);
    Key(Find<QLineEdit>("text"), Qt::Key_Return);
    Key(Find<QListWidget>("list"), Qt::Key_Enter);
    EXPECT_EQ(clicks, 2);
}

TEST_F(FormWindowKeysTest, EnterPressesTheButtonThatHasTheFocusFirst) {
    QPushButton other(&Window());
    other.setDefault(true);
    Find<QPushButton>("button").setFocus();
    Key(Find<QPushButton>("button"), Qt::Key_Return);
    EXPECT_EQ(clicks, 1);
}

TEST_F(FormWindowKeysTest, EscapePressesTheButtonThatCancels) {
    Find<QPushButton>("button").setProperty("cancels", true);
    Key(Find<QLineEdit>("text"), Qt::Key_Escape);
    EXPECT_EQ(clicks, 1);
    EXPECT_TRUE(form.IsLoaded());
}

TEST_F(FormWindowKeysTest, EscapeThatIsHeldDownDoesNotCloseTheNextWindowToo) {
    form.onCloseRequest = [this](CloseRequest&) { ++clicks; };
    QKeyEvent repeated(QEvent::KeyPress, Qt::Key_Escape, Qt::NoModifier, {}, true);
    QApplication::sendEvent(&Window(), &repeated);
    EXPECT_EQ(clicks, 0);
    EXPECT_TRUE(form.IsLoaded());
}

TEST_F(FormWindowKeysTest, EscapeClosesAWindowWithoutSuchAButtonFromEveryKindOfControl) {
    form.onCloseRequest = [this](CloseRequest& request) {
        ++clicks;
        request.cancel = true;
    };
    int tried = 0;
    for (QWidget* widget : Window().findChildren<QWidget*>()) {
        const bool isInPopup = widget->window() != &Window();
        if (!isInPopup && widget->focusPolicy() & Qt::TabFocus) {
            widget->setFocus();
            Key(*widget, Qt::Key_Escape);
            EXPECT_EQ(clicks, ++tried) << widget->objectName().toStdString();
        }
    }
    EXPECT_GT(tried, 9);
}

TEST_F(FormWindowTest, BoxOverAFormOutlivesTheForm) {
    Show();
    Window().activateWindow();
    const QPointer<FormWindow> window(&Window());
    QTimer::singleShot(0, [&] {
        const QPointer<QWidget> box(QApplication::activeModalWidget());
        ASSERT_EQ(box->parentWidget(), window.data());
        form.Unload();
        Settle();
        ASSERT_TRUE(box);
        EXPECT_TRUE(box->isVisible());
        EXPECT_FALSE(window->isVisible());
        box->close();
    });
    QtDialogs([] {}).ShowMessage("text", "", MessageIcon::kNone);
    Settle();
    EXPECT_FALSE(window);
}

}  // namespace
}  // namespace horavex
