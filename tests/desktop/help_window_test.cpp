#include "desktop/ports/help_window.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <sys/stat.h>

#include <QApplication>
#include <QDesktopServices>
#include <QKeyEvent>
#include <QScrollBar>
#include <QTextBlock>
#include <QTimer>
#include <QWindow>
#include <fstream>

#include "base/fault.h"
#include "desktop/form_window_fixture.h"
#include "desktop/ports/qt_shell.h"
#include "desktop/scoped_look.h"
#include "linux/posix_files.h"
#include "support/temporary_folder.h"
#include "support/test_platform.h"

namespace horavex {
namespace {

class HelpWindowTest : public testing::Test {
protected:
    HelpWindowTest() {
        Write("one.html", "One", "<p><a href=\"two.html\">on</a></p>");
        Write("two.html", "Two", "<p><a href=\"one.html\">back</a></p>");
    }

    void Write(const std::string& name, const std::string& title, const std::string& body,
               const std::string& direction = "ltr") {
        std::ofstream(folder / name)
            << "<html dir=\"" << direction << "\"><head><meta charset=\"utf-8\"><title>" << title
            << "</title></head><body><h1>" << title << "</h1>" << body << "</body></html>";
    }

    HelpView View(std::size_t page) const {
        return {.owner = "KindsForm",
                .place = {256, 256, 512, 512},
                .title = "Help",
                .contents = "Contents",
                .back = "Back",
                .forward = "Forward",
                .pages = {{"One", folder / "one.html"}, {"Two", folder / "two.html"}},
                .page = page};
    }

    void Show(std::size_t page) {
        window.Show(View(page));
        QApplication::processEvents();
    }

    template <class Widget>
    Widget& Find(const char* name) {
        return *window.findChild<Widget*>(QString::fromUtf8(name));
    }

    std::string ShownText() {
        return Find<QTextBrowser>("page").toPlainText().section('\n', 0, 0).toStdString();
    }
    int Row() { return Find<QListWidget>("contents").currentRow(); }

    TestPlatform platform;
    TemporaryFolder folder;
    HelpWindow window;
};

TEST_F(HelpWindowTest, SearchGoesFromPlaceToPlaceAndRoundTheEnd) {
    Write("one.html", "One", "<p>a word, and a Word</p>");
    Write("two.html", "Two", "<p>another word</p>");
    Show(0);
    auto& search = Find<QLineEdit>("search");
    const auto& page = Find<QTextBrowser>("page");
    search.setText("word");
    std::vector<std::pair<int, int>> places;  // page, and place in it
    for (int press = 0; press < 4; ++press) {
        Q_EMIT search.returnPressed();
        places.emplace_back(Row(), page.textCursor().selectionStart());
        EXPECT_EQ(page.textCursor().selectedText().toLower(), "word");
    }
    EXPECT_EQ(places[1].first, 0);
    EXPECT_GT(places[1].second, places[0].second);
    EXPECT_EQ(places[2].first, 1);
    EXPECT_EQ(places[3], places[0]);
}

TEST_F(HelpWindowTest, ArrowKeysGoThroughTheListUntilASearchIsWanted) {
    Show(0);
    EXPECT_EQ(window.focusWidget(), &Find<QListWidget>("contents"));
}

TEST_F(HelpWindowTest, SearchForWhatStandsNowhereLeavesThePageAndMarksTheText) {
    Show(1);
    auto& search = Find<QLineEdit>("search");
    search.setText("nowhere");
    Q_EMIT search.returnPressed();
    EXPECT_EQ(Row(), 1);
    EXPECT_EQ(search.selectedText(), "nowhere");
    EXPECT_EQ(search.accessibleName(), "Search");
}

TEST_F(HelpWindowTest, LinksFollowTheThemeWhileAPageIsReadAndThePageStaysInItsPlace) {
    std::string lines;
    for (int line = 0; line < 200; ++line) {
        lines += "<p>line</p>";
    }
    Write("one.html", "One", "<p><a href=\"two.html\">on</a></p>" + lines);
    Show(0);
    auto& page = Find<QTextBrowser>("page");
    page.verticalScrollBar()->setValue(300);
    for (const look::Theme theme : {look::Theme::kDark, look::Theme::kContrast}) {
        const ScopedLook look(theme);
        QApplication::processEvents();
        QTextCursor link = page.document()->find(QStringLiteral("on"));
        while (!link.charFormat().isAnchor()) {
            link = page.document()->find(QStringLiteral("on"), link);
            ASSERT_FALSE(link.isNull());
        }
        EXPECT_EQ(link.charFormat().foreground().color(), look::ColourOf(theme, look::Role::kLink));
        EXPECT_EQ(page.verticalScrollBar()->value(), 300);
    }
}

TEST_F(HelpWindowTest, OpensAtThePageAndMarksIt) {
    Show(1);
    EXPECT_TRUE(window.isVisible());
    EXPECT_EQ(window.windowTitle(), "Help");
    EXPECT_EQ(ShownText(), "Two");
    EXPECT_EQ(Row(), 1);
    EXPECT_EQ(Find<QListWidget>("contents").item(0)->text(), "One");
}

TEST_F(HelpWindowTest, TopicsKeepApart) {
    Show(0);
    const auto& contents = Find<QListWidget>("contents");
    const QRect first = contents.visualItemRect(contents.item(0));
    EXPECT_GE(contents.visualItemRect(contents.item(1)).top() - first.bottom() - 1, 4);
}

TEST_F(HelpWindowTest, TurnsToAnotherPageWhileItIsOpen) {
    Show(0);
    Show(1);
    EXPECT_EQ(ShownText(), "Two");
    EXPECT_EQ(Row(), 1);
}

TEST_F(HelpWindowTest, ContentsOpenPages) {
    Show(0);
    Find<QListWidget>("contents").setCurrentRow(1);
    EXPECT_EQ(ShownText(), "Two");
}

TEST_F(HelpWindowTest, LinksLeadOnAndTheContentsFollow) {
    Show(0);
    auto& page = Find<QTextBrowser>("page");
    page.setFocus();
    for (const int key : {Qt::Key_Tab, Qt::Key_Return}) {  // to the link, and on
        QKeyEvent press(QEvent::KeyPress, key, Qt::NoModifier);
        QApplication::sendEvent(&page, &press);
    }
    EXPECT_EQ(ShownText(), "Two");
    EXPECT_EQ(Row(), 1);
}

/// Takes what would be opened by other programs.
class OpenedAddresses : public QTextBrowser {
public:
    explicit OpenedAddresses(QStringList schemes) : schemes_(std::move(schemes)) {
        for (const QString& scheme : schemes_) {
            QDesktopServices::setUrlHandler(scheme, this, "setSource");
        }
    }
    ~OpenedAddresses() override {
        for (const QString& scheme : schemes_) {
            QDesktopServices::unsetUrlHandler(scheme);
        }
    }

    std::vector<std::string> addresses;

protected:
    void doSetSource(const QUrl& name, QTextDocument::ResourceType) override {
        addresses.push_back(name.toString().toStdString());
    }

private:
    QStringList schemes_;
};

TEST_F(HelpWindowTest, LinkOutOfTheHelpLeadsToTheWebOrToMailAndNowhereElse) {
    OpenedAddresses opened({"http", "https", "mailto", "smb", "tool"});
    Write("one.html", "One",
          "<a href=\"tool:run\">1</a> <a href=\"https://a.example/b\">2</a> "
          "<a href=\"smb://a/b\">3</a> <a href=\"mailto:a@b.example\">4</a> "
          "<a href=\"http://a.example/\">5</a> <a href=\"tool://a\">6</a>");
    Show(0);
    auto& page = Find<QTextBrowser>("page");
    page.setFocus();
    for (int link = 0; link < 6; ++link) {
        for (const int key : {Qt::Key_Tab, Qt::Key_Return}) {
            QKeyEvent press(QEvent::KeyPress, key, Qt::NoModifier);
            QApplication::sendEvent(&page, &press);
        }
        EXPECT_EQ(ShownText().substr(0, 3), "One");
    }
    EXPECT_THAT(opened.addresses, testing::ElementsAre("https://a.example/b", "mailto:a@b.example",
                                                       "http://a.example/"));
}

TEST_F(HelpWindowTest, PictureOfAPageIsShown) {
    QImage(24, 24, QImage::Format_RGB32).save(QString::fromStdString(folder / "p.png"));
    Write("one.html", "One", "<p><img src=\"p.png\"></p>");
    Show(0);
    const QUrl url = QUrl::fromLocalFile(QString::fromStdString(folder / "p.png"));
    const QVariant picture =
        Find<QTextBrowser>("page").document()->resource(QTextDocument::ImageResource, url);
    EXPECT_FALSE(picture.isNull());
}

// A pipe as a picture or as a page would be waited for until somebody writes into it.
TEST_F(HelpWindowTest, PipeInPlaceOfAPictureOrAPageIsPassedOver) {
    ASSERT_EQ(::mkfifo((folder / "pipe.png").c_str(), 0600), 0);
    ASSERT_EQ(::mkfifo((folder / "pipe.html").c_str(), 0600), 0);
    Write("one.html", "One",
          "<p>text <img src=\"pipe.png\"> <img src=\"" + folder.Path() +
              "/pipe.png\"> <a href=\"pipe.html\">on</a></p>");
    Show(0);
    EXPECT_EQ(ShownText(), "One");
    Find<QTextBrowser>("page").setSource(
        QUrl::fromLocalFile(QString::fromStdString(folder / "pipe.html")));
}

TEST_F(HelpWindowTest, PageLargerThanAnyPageIsPassedOver) {
    Write("two.html", "Two", std::string(kLargestText, ' '));
    Show(1);
    EXPECT_EQ(ShownText(), "");
}

TEST_F(HelpWindowTest, BackAndForwardWalkThroughWhatWasRead) {
    Show(0);
    auto& back = Find<QToolButton>("back");
    auto& forward = Find<QToolButton>("forward");
    EXPECT_FALSE(back.isEnabled());
    EXPECT_FALSE(forward.isEnabled());
    Find<QListWidget>("contents").setCurrentRow(1);
    EXPECT_TRUE(back.isEnabled());
    back.click();
    EXPECT_EQ(ShownText(), "One");
    EXPECT_EQ(Row(), 0);
    EXPECT_TRUE(forward.isEnabled());
    forward.click();
    EXPECT_EQ(ShownText(), "Two");
}

TEST_F(HelpWindowTest, ControlsAreNamedForThoseWhoHearThem) {
    Show(0);
    EXPECT_EQ(Find<QToolButton>("back").text(), "Back");
    EXPECT_EQ(Find<QToolButton>("forward").text(), "Forward");
    EXPECT_EQ(Find<QListWidget>("contents").accessibleName(), "Contents");
    EXPECT_EQ(Find<QTextBrowser>("page").accessibleName(), "Help");
}

TEST_F(HelpWindowTest, ArabicRunsFromTheRightEvenBehindALatinWord) {
    Write("one.html", "مساعدة", "<p>Horavex برنامج</p>", "rtl");
    HelpView view = View(0);
    view.pages[0].title = "مساعدة";
    window.Show(view);
    EXPECT_EQ(window.layoutDirection(), Qt::RightToLeft);
    const QTextDocument& document = *Find<QTextBrowser>("page").document();
    EXPECT_EQ(document.lastBlock().text().toStdString(), "Horavex برنامج");
    EXPECT_EQ(document.lastBlock().textDirection(), Qt::RightToLeft);
    Show(1);
    EXPECT_EQ(window.layoutDirection(), Qt::LeftToRight);
}

TEST_F(HelpWindowTest, PartsStandWithinTheirMarginsFromEitherSide) {
    for (const char* title : {"مساعدة", "Help"}) {
        HelpView view = View(0);
        view.pages[0].title = title;
        window.Show(view);
        window.resize(820, 620);
        QApplication::processEvents();
        for (const char* name : {"contents", "page"}) {
            const auto& part = Find<QWidget>(name);
            EXPECT_TRUE(part.parentWidget()->rect().contains(part.geometry())) << title << name;
        }
    }
}

/// How far from the side where it is read the ink between two rows begins, in columns.
int BeginOf(const QImage& image, int top, int bottom, bool fromRight) {
    for (int column = 0; column < image.width(); ++column) {
        const int x = fromRight ? image.width() - 1 - column : column;
        for (int y = top; y < bottom; ++y) {
            if (image.pixelColor(x, y).lightness() < 128) {
                return column;
            }
        }
    }
    return image.width();
}

TEST_F(HelpWindowTest, LinesBehindTheFirstOfATopicStandFurtherIn) {
    for (const char* title :
         {"mmm mmmmm mmm mmmmm mmm mmmmm mmm", "ممم ممممم ممم ممممم ممم ممممم ممم ممممم"}) {
        HelpView view = View(1);
        view.pages[0].title = title;
        window.Show(view);
        QApplication::processEvents();
        auto& contents = Find<QListWidget>("contents");
        const QRect topic = contents.visualItemRect(contents.item(0));
        const QImage image = contents.viewport()->grab(topic).toImage();
        const int line = image.height() / 2;
        EXPECT_EQ(BeginOf(image, 0, line, contents.isRightToLeft()) + 12,
                  BeginOf(image, line, 2 * line, contents.isRightToLeft()))
            << title;
    }
}

TEST_F(HelpWindowTest, ComesUpInItsPartOfTheScreen) {
    HelpView view = View(0);
    view.place = {128, 256, 768, 512};
    window.Show(view);
    const QRect screen = window.screen()->availableGeometry();
    EXPECT_EQ(window.pos(), screen.topLeft() + QPoint(screen.width() / 8, screen.height() / 4));
    EXPECT_EQ(window.size().expandedTo(window.minimumSizeHint()), window.size());
    EXPECT_GE(window.width(), screen.width() * 3 / 4 - 1);
    EXPECT_GE(window.height(), screen.height() / 2 - 1);
}

TEST_F(HelpWindowTest, StaysWhereTheUserPutItWhileItIsOpen) {
    Show(0);
    window.resize(700, 555);
    Show(1);
    EXPECT_EQ(window.size(), QSize(700, 555));
}

TEST_F(HelpWindowTest, EscapeHidesIt) {
    Show(0);
    QKeyEvent press(QEvent::KeyPress, Qt::Key_Escape, Qt::NoModifier);
    QApplication::sendEvent(&Find<QTextBrowser>("page"), &press);
    EXPECT_FALSE(window.isVisible());
}

TEST_F(HelpWindowTest, ShellOpensAndClosesIt) {
    PosixFiles files;
    QtShell shell(files);
    shell.CloseHelp();
    shell.ShowHelp(View(0));
    const auto windows = QApplication::topLevelWidgets();
    const auto help = std::find_if(windows.begin(), windows.end(), [this](QWidget* candidate) {
        return candidate != &window && candidate->windowTitle() == "Help";
    });
    ASSERT_NE(help, windows.end());
    EXPECT_TRUE((*help)->isVisible());
    shell.CloseHelp();
    EXPECT_FALSE((*help)->isVisible());
}

class HelpOfAFormTest : public FormWindowTest {
protected:
    ~HelpOfAFormTest() override { InstallHelpKey(nullptr); }

    TemporaryFolder folder;
    std::vector<std::string> asked;
};

TEST_F(HelpOfAFormTest, HelpKeyAsksForTheForm) {
    InstallHelpKey([this](Form& pressed) { asked.push_back(pressed.Name()); });
    Show();
    Key(Window(), Qt::Key_F1);
    Key(Window(), Qt::Key_F2);
    EXPECT_EQ(asked, std::vector<std::string>{"KindsForm"});
}

TEST_F(HelpOfAFormTest, HelpKeyOfAnyControlReachesTheForm) {
    InstallHelpKey([this](Form& pressed) { asked.push_back(pressed.Name()); });
    Show();
    int tried = 0;
    for (auto* widget : Window().findChildren<QWidget*>()) {
        if (widget->focusPolicy() != Qt::NoFocus && widget->isVisible() &&
            !widget->objectName().startsWith("qt_") && !widget->objectName().isEmpty()) {
            asked.clear();
            Key(*widget, Qt::Key_F1);
            EXPECT_EQ(asked.size(), 1U) << widget->objectName().toStdString();
            ++tried;
        }
    }
    EXPECT_GT(tried, 5);
}

TEST_F(HelpOfAFormTest, FaultOfTheHelpIsToldAndKeptOutOfTheToolkit) {
    InstallHelpKey([](Form&) { throw FileFault("help", "is not there"); });
    Show();
    Key(Window(), Qt::Key_F1);
    EXPECT_EQ(platform.dialogs.messages.size(), 1U);
}

// The viewer belongs to the window that is modal, or no click would reach it.
TEST_F(HelpOfAFormTest, ViewerOverAModalWindowTakesInputAndOutlivesIt) {
    std::ofstream(folder / "one.html") << "<h1>One</h1>";
    HelpWindow viewer;
    QTimer::singleShot(0, [&] {
        viewer.Show({.owner = "",
                     .place = {256, 256, 512, 512},
                     .title = "Help",
                     .contents = "",
                     .back = "",
                     .forward = "",
                     .pages = {{"One", folder / "one.html"}},
                     .page = 0});
        EXPECT_EQ(QApplication::activeModalWidget(), &Window());
        EXPECT_EQ(viewer.windowHandle()->transientParent(), Window().windowHandle());
        form.Unload();
    });
    form.ShowModal();
    Settle();
    EXPECT_TRUE(viewer.isVisible());
    EXPECT_EQ(viewer.windowHandle()->transientParent(), nullptr);
}

}  // namespace
}  // namespace horavex
