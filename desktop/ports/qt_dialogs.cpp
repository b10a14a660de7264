#include "desktop/ports/qt_dialogs.h"

#include <QApplication>
#include <QFile>
#include <QFileDialog>
#include <QMessageBox>
#include <QRegularExpression>

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
    const QString message = QString::fromStdString(text);
    QMessageBox box(IconOf(icon), QString::fromStdString(title.empty() ? kTitle : title), message,
                    QMessageBox::Ok, QApplication::activeWindow());
    box.setTextFormat(Qt::PlainText);
    box.setLayoutDirection(message.isRightToLeft() ? Qt::RightToLeft : Qt::LeftToRight);
    box.exec();
}

void QtDialogs::Beep() {
    QApplication::beep();
}

std::string QtDialogs::SaveFile(const FileRequest& request, const std::string& suffix) {
    const QStringList filters = FiltersOf(QString::fromStdString(request.filter));
    QFileDialog dialog(QApplication::activeWindow(), QString::fromStdString(request.title));
    dialog.setAcceptMode(QFileDialog::AcceptSave);
    dialog.setDefaultSuffix(QString::fromStdString(suffix));
    QObject::connect(&dialog, &QFileDialog::filterSelected, [&](const QString& type) {
        if (const QString own = SuffixOf(type, filters); !own.isEmpty()) {
            dialog.setDefaultSuffix(own);
        }
    });
    dialog.setOption(QFileDialog::HideNameFilterDetails);
    dialog.setNameFilters(filters);
    dialog.selectNameFilter(filters.value(request.filterIndex - 1));
    if (dialog.exec() != QDialog::Accepted) {
        return {};
    }
    return QFile::encodeName(dialog.selectedFiles().value(0)).toStdString();
}

}  // namespace horavex
