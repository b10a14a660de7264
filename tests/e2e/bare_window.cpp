// A window with nothing but a second hand's worth of repainting: what the toolkit alone costs. With
// an argument it fills the screen.
#include <QApplication>
#include <QPainter>
#include <QTimer>
#include <QWidget>

namespace {

class BareWindow : public QWidget {
public:
    BareWindow() {
        setWindowFlags(Qt::Window | Qt::FramelessWindowHint);
        setWindowTitle(QStringLiteral("bare"));
        resize(420, 420);
    }

protected:
    void paintEvent(QPaintEvent*) override {
        QPainter painter(this);
        painter.fillRect(rect(), dark_ ? Qt::black : Qt::white);
        dark_ = !dark_;
    }

private:
    bool dark_ = false;
};

}  // namespace

int main(int argc, char** argv) {
    const QApplication application(argc, argv);
    BareWindow window;
    QTimer second;
    second.callOnTimeout([&window] { window.update(); });
    second.start(1000);
    argc > 1 ? window.showFullScreen() : window.show();
    return QApplication::exec();
}
