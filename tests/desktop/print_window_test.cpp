#include <QApplication>
#include <QDialog>
#include <QFile>
#include <QPrinter>
#include <QPushButton>
#include <QTimer>

#include "desktop/look/contrast.h"
#include "desktop/look/icons.h"
#include "desktop/ports/qt_windows.h"
#include "desktop/scoped_look.h"
#include "forms/form.h"
#include "support/temporary_folder.h"
#include "support/test_platform.h"

namespace horavex {
namespace {

class SheetForm : public Form {
public:
    SheetForm() : Form("SheetForm", {.width = 3000, .height = 1500}) {}
};

class PrintWindowTest : public testing::Test {
protected:
    ~PrintWindowTest() override {
        form.Unload();
        QApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    }

    static bool HasDarkStroke(const QImage& picture) {
        for (int y = 0; y < picture.height(); ++y) {
            for (int x = 0; x < picture.width(); ++x) {
                if (look::Contrast(picture.pixelColor(x, y), Qt::white) > 4.5) {
                    return true;
                }
            }
        }
        return false;
    }

    TestPlatform platform;
    SheetForm form;
    FormWindows windows{Layouts{{"SheetForm", [](QWidget&) {}}}};
    QtWindows port{windows};
};

TEST_F(PrintWindowTest, PutsTheWindowOnOnePage) {
    const TemporaryFolder folder;
    const QString file = QString::fromStdString(folder.Path() + "/window.pdf");
    form.Show();
    QApplication::processEvents();
    QPrinter printer;
    printer.setOutputFormat(QPrinter::PdfFormat);
    printer.setOutputFileName(file);
    PrintWindow(*windows.Find(&form), printer);
    QFile pdf(file);
    ASSERT_TRUE(pdf.open(QIODevice::ReadOnly));
    const QByteArray content = pdf.readAll();
    EXPECT_TRUE(content.startsWith("%PDF"));
    EXPECT_EQ(content.count("/Type /Page\n"), 1);
}

TEST_F(PrintWindowTest, PaperIsLightWhateverTheWindowHasOn) {
    for (const look::Theme theme : {look::Theme::kDark, look::Theme::kContrast}) {
        const ScopedLook dark(theme);
        form.Show();
        QApplication::processEvents();
        FormWindow& window = *windows.Find(&form);
        auto* button = new QPushButton(look::IconOf(QStringLiteral("print")), {}, &window);
        button->setGeometry(20, 20, 100, 60);
        button->show();
        QImage paper(window.size(), QImage::Format_RGB32);
        paper.fill(Qt::white);
        PrintWindow(window, paper);
        EXPECT_EQ(paper.pixelColor(10, 10),
                  look::ColourOf(look::Theme::kLight, look::Role::kGround));
        EXPECT_TRUE(HasDarkStroke(paper.copy(60, 40, 20, 20)));
        EXPECT_EQ(window.palette().color(QPalette::Window),
                  look::ColourOf(theme, look::Role::kGround));
        delete button;
    }
    QApplication::processEvents();
    EXPECT_FALSE(look::IsDark(windows.Find(&form)->palette())) << "it follows the desktop again";
}

TEST_F(PrintWindowTest, AsksForThePrinterFirst) {
    form.Show();
    QApplication::processEvents();
    bool asked = false;
    QTimer::singleShot(0, [&asked] {
        auto* dialog = qobject_cast<QDialog*>(QApplication::activeModalWidget());
        asked = dialog != nullptr;
        if (asked) {
            dialog->reject();
        }
    });
    port.Print("SheetForm");
    EXPECT_TRUE(asked);
}

TEST_F(PrintWindowTest, WindowThatIsNotOnViewIsNotPrinted) {
    form.Load();
    port.Print("SheetForm");
    port.Print("NoForm");
    EXPECT_EQ(QApplication::activeModalWidget(), nullptr);
}

}  // namespace
}  // namespace horavex
