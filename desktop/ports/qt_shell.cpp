#include "desktop/ports/qt_shell.h"

#include <QCoreApplication>
#include <QDesktopServices>
#include <QProcess>
#include <QStandardPaths>
#include <QUrl>
#include <span>

namespace horavex {

namespace {

struct Tool {
    const char* program;
    const char* argument;  // the page; nullptr for a program that has only this one
};

constexpr Tool kDateTimeTools[] = {
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

constexpr Tool kSystemInformationTools[] = {
    {"kinfocenter", nullptr},      {"gnome-control-center", "info-overview"},
    {"cinnamon-settings", "info"}, {"mate-system-monitor", "--show-system-tab"},
    {"hardinfo2", nullptr},        {"hardinfo", nullptr},
    {"lxqt-about", nullptr},       {"xfce4-about", nullptr},
};

QStringList ArgumentsOf(const Tool& tool) {
    return tool.argument == nullptr ? QStringList() : QStringList(QString::fromUtf8(tool.argument));
}

/// Starts the first that is installed. False where there is none.
bool StartFirst(std::span<const Tool> tools) {
    for (const Tool& tool : tools) {
        const QString program = QStandardPaths::findExecutable(QString::fromUtf8(tool.program));
        if (!program.isEmpty()) {
            return QProcess::startDetached(program, ArgumentsOf(tool));
        }
    }
    return false;
}

}  // namespace

QtShell::QtShell(Files& files)
    : entries_(files, QCoreApplication::applicationFilePath().toStdString()) {}

void QtShell::OpenDateTimeTool() {
    StartFirst(kDateTimeTools);
}

void QtShell::OpenAddress(const std::string& address) {
    QDesktopServices::openUrl(QUrl::fromUserInput(QString::fromStdString(address)));
}

bool QtShell::StartProgram(const std::string& path) {
    return QProcess::startDetached(QString::fromStdString(path), {});
}

bool QtShell::OpenSystemInformation() {
    return StartFirst(kSystemInformationTools);
}

void QtShell::ShowHelp(const HelpView& view) {
    if (help_ == nullptr) {
        help_ = std::make_unique<HelpWindow>();
    }
    help_->Show(view);
}

void QtShell::CloseHelp() {
    if (help_ != nullptr) {
        help_->hide();
    }
}

}  // namespace horavex
