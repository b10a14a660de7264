#pragma once

#include <QLineEdit>
#include <QListWidget>
#include <QSplitter>
#include <QTextBrowser>
#include <QToolButton>
#include <QWidget>

#include "desktop/form_window/usable_window.h"
#include "platform/help_view.h"

namespace horavex {

/// A page with its pictures. Files alone are shown, and none larger than its kind can be; an
/// address of the web or of mail goes to what the desktop has for it, and any other link leads
/// nowhere.
class PageView : public QTextBrowser {
public:
    QVariant loadResource(int type, const QUrl& name) override;

protected:
    void doSetSource(const QUrl& name, QTextDocument::ResourceType type) override;
    void changeEvent(QEvent* event) override;
};

/// The help viewer: the list of pages beside the page that is read, the way back and forward, and a
/// search through all pages.
/// Closing hides it, and it keeps its place until the program ends.
class HelpWindow : public QWidget {
public:
    HelpWindow();

    /// Shows a view and brings the window to the front. It comes up in front of a modal window,
    /// and users can go on reading while that is open.
    void Show(const HelpView& view);

protected:
    void keyPressEvent(QKeyEvent* event) override;

private:
    void Name(const HelpView& view);
    void Fill(const HelpView& view);
    void PlaceFirst(const HelpPlace& place);
    void OpenRow(int row);
    void FollowPage();
    void FindNext();
    bool Holds(int row, const QString& text);

    QToolButton back_;
    QToolButton forward_;
    QLineEdit search_;
    QSplitter parts_;
    QListWidget contents_;
    PageView page_;
    UsableWindow usable_{*this};
};

}  // namespace horavex
