#include "desktop/ports/qt_shell.h"

#include <QCoreApplication>
#include <QDesktopServices>
#include <QProcess>
#include <QStandardPaths>
#include <QUrl>

namespace horavex {

namespace {

struct DateTimeTool {
    const char* program;
    const char* argument;  // the page; nullptr for a program that has only this one
};

// The first that is installed opens.
constexpr DateTimeTool kDateTimeTools[] = {
    {"gnome-control-center", "datetime"},
    {"systemsettings", "kcm_clock"},
    {"systemsettings5", "kcm_clock"},
    {"kcmshell6", "kcm_clock"},
    {"kcmshell5", "kcm_clock"},
    {"cinnamon-settings", "calendar"},
    {"lxqt-admin-time", nullptr},
    {"mate-time-admin", nullptr},
    {"time-admin", nullptr},
};

QStringList ArgumentsOf(const DateTimeTool& tool) {
    return tool.argument == nullptr ? QStringList() : QStringList(QString::fromUtf8(tool.argument));
}

}  // namespace

QtShell::QtShell(Files& files)
    : entries_(files, QCoreApplication::applicationFilePath().toStdString()) {}

void QtShell::OpenDateTimeTool() {
    for (const DateTimeTool& tool : kDateTimeTools) {
        const QString program = QStandardPaths::findExecutable(QString::fromUtf8(tool.program));
        if (!program.isEmpty()) {
            QProcess::startDetached(program, ArgumentsOf(tool));
            return;
        }
    }
}

void QtShell::OpenAddress(const std::string& address) {
    QDesktopServices::openUrl(QUrl::fromUserInput(QString::fromStdString(address)));
}

}  // namespace horavex
