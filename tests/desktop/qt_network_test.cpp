#include "desktop/ports/qt_network.h"

#include "desktop/form_window_fixture.h"

namespace horavex {
namespace {

/// Counts the paintings of a widget.
class Paintings : public QObject {
public:
    explicit Paintings(QWidget& widget) { widget.installEventFilter(this); }

    bool eventFilter(QObject*, QEvent* event) override {
        count += event->type() == QEvent::Paint ? 1 : 0;
        return false;
    }

    int count = 0;
};

class QtNetworkTest : public FormWindowTest {
protected:
    QtNetwork network;
};

TEST_F(QtNetworkTest, WindowsArePaintedBeforeAFetchBlocks) {
    form.label.SetVisible(false);
    Show();
    auto& label = Find<QLabel>("label");
    const Paintings paintings(label);
    form.label.SetCaption("Checking");
    form.label.SetVisible(true);
    network.Get("");
    EXPECT_EQ(label.text(), "Checking");
    EXPECT_GT(paintings.count, 0);
}

TEST_F(QtNetworkTest, WindowsArePaintedBeforeAFetchWithASignatureBlocks) {
    Show();
    auto& label = Find<QLabel>("label");
    const Paintings paintings(label);
    form.label.SetCaption("Checking");
    EXPECT_FALSE(network.GetSigned("", "").isSigned);
    EXPECT_EQ(label.text(), "Checking");
    EXPECT_GT(paintings.count, 0);
}

}  // namespace
}  // namespace horavex
