#include "desktop/ports/qt_dialogs.h"

#include <QDir>
#include <QFile>
#include <QFileDialog>
#include <QMessageBox>
#include <QPushButton>
#include <QRegularExpression>
#include <QStandardPaths>

#include "desktop/form_window/caption_text.h"
#include "desktop/form_window/usable_window.h"
#include "desktop/user_text.h"
#include "lang/language_pack.h"

namespace horavex {

namespace {

constexpr const char* kTitle = "Horavex";

QMessageBox::Icon IconOf(MessageIcon icon) {
    switch (icon) {
        case MessageIcon::kInformation:
            return QMessageBox::Information;
        case MessageIcon::kExclamation:
            return QMessageBox::Warning;
        case MessageIcon::kCritical:
            return QMessageBox::Critical;
        case MessageIcon::kNone:
            break;
    }
    return QMessageBox::NoIcon;
}

/// "label|pattern;pattern|" over and over, as the toolkit has it: "label (pattern pattern)".
QStringList FiltersOf(const QString& filter) {
    const QStringList parts = filter.split(u'|');
    QStringList filters;
    for (qsizetype i = 0; i + 1 < parts.size(); i += 2) {
        QString patterns = parts[i + 1];
        filters << parts[i] + " (" + patterns.replace(u';', u' ') + ")";
    }
    return filters;
}

/// The path that the user chooses; empty for none.
std::string Ask(QFileDialog& dialog, const FileRequest& request) {
    const QStringList filters = FiltersOf(QString::fromStdString(request.filter));
    const QString title = UserText(request.title);
    dialog.setWindowTitle(title);
    dialog.setLayoutDirection(title.isRightToLeft() ? Qt::RightToLeft : Qt::LeftToRight);
    dialog.setOption(QFileDialog::HideNameFilterDetails);
    dialog.setNameFilters(filters);
    dialog.selectNameFilter(filters.value(request.filterIndex - 1));
    if (dialog.exec() != QDialog::Accepted) {
        return {};
    }
    return QFile::encodeName(dialog.selectedFiles().value(0)).toStdString();
}

QString DocumentsFolder() {
    const QString documents = QStandardPaths::writableLocation(QStandardPaths::DocumentsLocation);
    return QFileInfo(documents).isDir() ? documents : QDir::homePath();
}

/// A title that names what is saved is a good name for its file, without points: a name that has
/// one gets no suffix from the dialogue.
void Propose(QFileDialog& dialog, QString title) {
    dialog.setDirectory(DocumentsFolder());
    if (!title.isEmpty()) {
        dialog.selectFile(title.replace(u'/', u'-').remove(u'.'));
    }
}

/// The suffix of a type of file that has one: "html" of "HTML Files (*.html)". The dialogue names
/// the type without its pattern. Else empty.
QString SuffixOf(const QString& type, const QStringList& filters) {
    static const QRegularExpression oneSuffix(QStringLiteral(R"( \(\*\.(\w+)\)$)"));
    for (const QString& filter : filters) {
        const auto match = oneSuffix.match(filter);
        if (match.hasMatch() && filter.startsWith(type + QStringLiteral(" ("))) {
            return match.captured(1);
        }
    }
    return {};
}

}  // namespace

void QtDialogs::ShowMessage(const std::string& text, const std::string& title, MessageIcon icon) {
    const QString message = UserText(text);
    QMessageBox box(IconOf(icon), UserText(title.empty() ? kTitle : title), message,
                    QMessageBox::Ok, WindowInFront());
    box.setTextFormat(Qt::PlainText);
    QAbstractButton& ok = *box.button(QMessageBox::Ok);
    ok.setIcon({});  // its word says it
    // The toolkit has not all languages of the packs.
    ok.setText(WithoutBrokenKey(UserText(GetLangString("frmAbout", "cmdOK", "&OK"))));
    box.setLayoutDirection(message.isRightToLeft() ? Qt::RightToLeft : Qt::LeftToRight);
    box.exec();
}

std::string QtDialogs::OpenFile(const FileRequest& request) {
    QFileDialog dialog(WindowInFront());
    dialog.setFileMode(QFileDialog::ExistingFile);
    return Ask(dialog, request);
}

std::string QtDialogs::SaveFile(const FileRequest& request, const std::string& suffix) {
    QFileDialog dialog(WindowInFront());
    dialog.setAcceptMode(QFileDialog::AcceptSave);
    dialog.setDefaultSuffix(QString::fromStdString(suffix));
    Propose(dialog, QString::fromStdString(request.title));
    QObject::connect(&dialog, &QFileDialog::filterSelected, [&dialog](const QString& type) {
        if (const QString own = SuffixOf(type, dialog.nameFilters()); !own.isEmpty()) {
            dialog.setDefaultSuffix(own);
        }
    });
    return Ask(dialog, request);
}

}  // namespace horavex
