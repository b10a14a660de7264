#include "desktop/ports/help_window.h"

#include <QApplication>
#include <QDesktopServices>
#include <QFile>
#include <QHBoxLayout>
#include <QKeyEvent>
#include <QScreen>
#include <QScrollBar>
#include <QShortcut>
#include <QSignalBlocker>
#include <QStyleOption>
#include <QTextDocument>
#include <QVBoxLayout>
#include <QWindow>

#include "base/fault.h"
#include "desktop/ports/topic_lines.h"
#include "desktop/user_text.h"
#include "lang/language_pack.h"
#include "linux/posix_files.h"

namespace horavex {

namespace {

constexpr int kWholeScreen = 1024;  // the unit of HelpPlace
constexpr int kContentsWidth = 220;
constexpr int kPageWidth = 520;
constexpr int kPageMargin = 14;
constexpr int kSearchWidth = 240;
constexpr int kBetweenTopics = 2;

/// A modal window takes the viewer along, for nothing else would let users into it.
QWindow* OwnerWindow(const QString& form) {
    if (const QWidget* modal = QApplication::activeModalWidget()) {
        return modal->windowHandle();
    }
    for (const QWidget* window : QApplication::topLevelWidgets()) {
        if (window->objectName() == form && window->isVisible()) {
            return window->windowHandle();
        }
    }
    return nullptr;
}

void SetUpButton(QToolButton& button) {
    button.setToolButtonStyle(Qt::ToolButtonTextBesideIcon);
    button.setAutoRaise(true);
    button.setFocusPolicy(Qt::TabFocus);
    button.setEnabled(false);
}

/// The arrow goes with the direction of reading.
void NameButton(QToolButton& button, const std::string& text, QStyle::StandardPixmap arrow) {
    QStyleOption option;
    option.initFrom(&button);
    button.setText(QString::fromStdString(text));
    button.setIcon(button.style()->standardIcon(arrow, &option, &button));
}

/// The word beside the search for a city, without its key.
QString SearchWord() {
    return UserText(GetLangString("fCountry", "lblSearch", "&Search")).remove(QChar(u'&'));
}

QImage NoPicture() {
    QImage dot(1, 1, QImage::Format_ARGB32);
    dot.fill(Qt::transparent);
    return dot;
}

}  // namespace

// The toolkit would open whatever the name leads to, and wait for the writer of a pipe for good. It
// tries so itself where there is no answer.
QVariant PageView::loadResource(int type, const QUrl& name) {
    const QString file = source().resolved(name).toLocalFile();
    const bool isPage = type == QTextDocument::HtmlResource;
    QByteArray content("");
    try {
        PosixFiles files;
        content = QByteArray::fromStdString(StringOf(ReadWhole(
            files, QFile::encodeName(file).toStdString(), isPage ? kLargestText : kLargestTable)));
    } catch (const FileFault&) {
        // As good as empty.
    }
    if (type != QTextDocument::ImageResource) {
        return content;
    }
    const QImage picture = QImage::fromData(content);
    return picture.isNull() ? NoPicture() : picture;
}

// Whatever else is installed for a kind of address takes it as a command; pages may come from
// anybody.
void PageView::doSetSource(const QUrl& name, QTextDocument::ResourceType type) {
    const QUrl target = source().resolved(name);
    if (target.isLocalFile() || target.isEmpty()) {
        QTextBrowser::doSetSource(name, type);
    } else if (const QString scheme = target.scheme();
               scheme == u"http" || scheme == u"https" || scheme == u"mailto") {
        QDesktopServices::openUrl(target);
    }
}

// The links of a page have the colour that they were read with.
void PageView::changeEvent(QEvent* event) {
    QTextBrowser::changeEvent(event);
    if (event->type() == QEvent::PaletteChange && !source().isEmpty()) {
        const int place = verticalScrollBar()->value();
        reload();
        verticalScrollBar()->setValue(place);
    }
}

HelpWindow::HelpWindow() {
    back_.setObjectName(QStringLiteral("back"));
    forward_.setObjectName(QStringLiteral("forward"));
    contents_.setObjectName(QStringLiteral("contents"));
    page_.setObjectName(QStringLiteral("page"));
    search_.setObjectName(QStringLiteral("search"));
    search_.setClearButtonEnabled(true);
    search_.setFixedWidth(kSearchWidth);
    SetUpButton(back_);
    SetUpButton(forward_);
    back_.setShortcut(QKeySequence::Back);
    forward_.setShortcut(QKeySequence::Forward);
    contents_.setWordWrap(true);
    contents_.setSpacing(kBetweenTopics);
    contents_.setItemDelegate(new TopicLines(contents_));
    page_.document()->setDocumentMargin(kPageMargin);

    auto* buttons = new QHBoxLayout;
    buttons->addWidget(&back_);
    buttons->addWidget(&forward_);
    buttons->addStretch();
    buttons->addWidget(&search_);
    parts_.addWidget(&contents_);
    parts_.addWidget(&page_);
    parts_.setStretchFactor(1, 1);
    parts_.setSizes({kContentsWidth, kPageWidth});
    auto* all = new QVBoxLayout(this);
    all->addLayout(buttons);
    all->addWidget(&parts_, 1);
    contents_.setFocus();

    connect(&back_, &QToolButton::clicked, &page_, &QTextBrowser::backward);
    connect(&forward_, &QToolButton::clicked, &page_, &QTextBrowser::forward);
    connect(&page_, &QTextBrowser::backwardAvailable, &back_, &QWidget::setEnabled);
    connect(&page_, &QTextBrowser::forwardAvailable, &forward_, &QWidget::setEnabled);
    connect(&page_, &QTextBrowser::historyChanged, this, [this] { FollowPage(); });
    connect(&search_, &QLineEdit::returnPressed, this, [this] { FindNext(); });
    auto* find = new QShortcut(QKeySequence::Find, this);
    connect(find, &QShortcut::activated, this,
            [this] { search_.setFocus(Qt::ShortcutFocusReason); });
    auto* next = new QShortcut(QKeySequence::FindNext, this);
    connect(next, &QShortcut::activated, this, [this] { FindNext(); });
    connect(&contents_, &QListWidget::currentRowChanged, this, [this](int row) { OpenRow(row); });
}

void HelpWindow::Show(const HelpView& view) {
    Fill(view);
    Name(view);
    OpenRow(static_cast<int>(view.page));
    if (!isVisible()) {
        PlaceFirst(view.place);
    }
    winId();  // makes the window of the platform, which the owner is set on
    usable_.Belong(OwnerWindow(QString::fromStdString(view.owner)));
    show();
    usable_.TellOwner();
    raise();
    activateWindow();
}

void HelpWindow::Name(const HelpView& view) {
    setWindowTitle(QString::fromStdString(view.title));
    NameButton(back_, view.back, QStyle::SP_ArrowBack);
    NameButton(forward_, view.forward, QStyle::SP_ArrowForward);
    search_.setPlaceholderText(SearchWord());
    search_.setAccessibleName(SearchWord());
    contents_.setAccessibleName(QString::fromStdString(view.contents));
    page_.setAccessibleName(QString::fromStdString(view.title));
}

void HelpWindow::Fill(const HelpView& view) {
    const QSignalBlocker quiet(contents_);
    contents_.clear();
    for (const HelpPage& page : view.pages) {
        auto* item = new QListWidgetItem(QString::fromStdString(page.title), &contents_);
        item->setData(Qt::UserRole, QUrl::fromLocalFile(QString::fromStdString(page.path)));
    }
    const bool fromRight = contents_.item(0)->text().isRightToLeft();
    setLayoutDirection(fromRight ? Qt::RightToLeft : Qt::LeftToRight);
    // The toolkit begins a dot too far to the right there.
    parts_.setContentsMargins(0, 0, fromRight ? 1 : 0, 0);
}

void HelpWindow::PlaceFirst(const HelpPlace& place) {
    const QRect whole = screen()->availableGeometry();
    const auto part = [](int extent, int share) { return extent * share / kWholeScreen; };
    resize(QSize(part(whole.width(), place.width), part(whole.height(), place.height))
               .expandedTo(minimumSizeHint()));
    move(whole.topLeft() + QPoint(part(whole.width(), place.x), part(whole.height(), place.y)));
}

void HelpWindow::OpenRow(int row) {
    if (const QListWidgetItem* item = contents_.item(row)) {
        page_.setSource(item->data(Qt::UserRole).toUrl());
    }
}

/// Marks the page in the contents, by whatever way it was reached.
void HelpWindow::FollowPage() {
    const QUrl shown = page_.source().adjusted(QUrl::RemoveFragment);
    const QSignalBlocker quiet(contents_);
    for (int row = 0; row < contents_.count(); ++row) {
        if (contents_.item(row)->data(Qt::UserRole).toUrl() == shown) {
            contents_.setCurrentRow(row);
        }
    }
}

bool HelpWindow::Holds(int row, const QString& text) {
    const QUrl url = contents_.item(row)->data(Qt::UserRole).toUrl();
    QTextDocument document;
    document.setHtml(
        QString::fromUtf8(page_.loadResource(QTextDocument::HtmlResource, url).toByteArray()));
    return document.toPlainText().contains(text, Qt::CaseInsensitive);
}

/// From the place that is marked on, page by page and round the end; the text that stands nowhere
/// is marked itself.
void HelpWindow::FindNext() {
    const QString text = search_.text().trimmed();
    if (text.isEmpty() || page_.find(text)) {
        return;
    }
    const int first = contents_.currentRow();
    for (int step = 1; step <= contents_.count(); ++step) {
        const int row = (first + step) % contents_.count();
        if (Holds(row, text)) {
            OpenRow(row);
            page_.moveCursor(QTextCursor::Start);
            page_.find(text);
            return;
        }
    }
    search_.selectAll();
}

void HelpWindow::keyPressEvent(QKeyEvent* event) {
    if (event->key() == Qt::Key_Escape) {
        hide();
    } else {
        QWidget::keyPressEvent(event);
    }
}

}  // namespace horavex
