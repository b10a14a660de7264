#include <QGuiApplication>

#include "ctl/document_fonts.h"
#include "desktop/documents/pdf_file.h"
#include "desktop/documents/png_file.h"

namespace horavex {

namespace {

/// An application without a display, made when the first document needs its fonts.
void StartToolkit() {
    static char name[] = "horavexctl";
    static char option[] = "-platform";
    static char platform[] = "offscreen";
    static char* arguments[] = {name, option, platform, nullptr};
    static int count = 3;
    // What the toolkit misses without a session is no affair of the user's.
    qInstallMessageHandler([](QtMsgType, const QMessageLogContext&, const QString&) {});
    static const QGuiApplication application(count, arguments);
}

}  // namespace

void InstallDocumentFonts(char** /*arguments*/) {
    InstallDocumentTools(
        {.writePdf =
             [](const std::string& path, const PrintedYear& year) {
                 StartToolkit();
                 WritePdf(path, year);
             },
         .writePng =
             [](const std::string& path, const Drawing& drawing, double width, double height) {
                 StartToolkit();
                 WritePng(path, drawing, width, height);
             }});
}

void TakeDocumentFonts() {
    // They are here.
}

}  // namespace horavex
