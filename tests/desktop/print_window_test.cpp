#include <QApplication>
#include <QDialog>
#include <QFile>
#include <QPrinter>
#include <QTimer>

#include "desktop/ports/qt_windows.h"
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
