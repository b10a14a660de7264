#include "desktop/printing/document_desk.h"

#include <QPrintDialog>
#include <QPrintPreviewDialog>
#include <QPrinter>

#include "desktop/documents/month_page.h"
#include "desktop/documents/pdf_file.h"
#include "desktop/documents/png_file.h"
#include "desktop/documents/usual_paper.h"
#include "desktop/form_window/usable_window.h"

namespace horavex {

namespace {

constexpr double kMargin = 15.0;  // millimetres

void SetUpPage(QPrinter& printer) {
    printer.setPageSize(UsualPaper());
    printer.setPageMargins(QMarginsF(kMargin, kMargin, kMargin, kMargin), QPageLayout::Millimeter);
}

void DrawOn(QPrinter& printer, const PrintedYear& year, int month) {
    QPainter painter(&printer);
    const QRectF area(QPointF(), printer.pageRect(QPrinter::DevicePixel).size());
    DrawMonthPage(painter, area, printer.resolution(), year, month);
}

void PreviewMonth(const PrintedYear& year, int month) {
    QPrinter printer(QPrinter::HighResolution);
    SetUpPage(printer);
    QPrintPreviewDialog dialog(&printer, WindowInFront());
    QObject::connect(&dialog, &QPrintPreviewDialog::paintRequested,
                     [&](QPrinter* target) { DrawOn(*target, year, month); });
    dialog.exec();
}

void PrintMonth(const PrintedYear& year, int month) {
    QPrinter printer(QPrinter::HighResolution);
    SetUpPage(printer);
    QPrintDialog dialog(&printer, WindowInFront());
    if (dialog.exec() == QDialog::Accepted) {
        DrawOn(printer, year, month);
    }
}

}  // namespace

void InstallDesktopDocuments() {
    InstallDocumentTools({WritePdf, WritePng, PreviewMonth, PrintMonth});
}

}  // namespace horavex
