#include "desktop/printing/document_desk.h"

#include <QApplication>
#include <QBuffer>
#include <QImage>
#include <QPrintDialog>
#include <QPrintPreviewDialog>
#include <QPrinter>

#include "desktop/documents/month_page.h"
#include "desktop/documents/pdf_file.h"
#include "desktop/documents/usual_paper.h"
#include "desktop/form_window/canvas.h"
#include "desktop/form_window/twips.h"
#include "platform/platform.h"

namespace horavex {

namespace {

constexpr int kPictureScale = 2;  // pixels of a saved picture for each of the screen
constexpr double kMargin = 15.0;  // millimetres

void WritePng(const std::string& path, const Drawing& drawing, double width, double height) {
    const QSize size(PixelsOf(width), PixelsOf(height));
    QImage image(size * kPictureScale, QImage::Format_ARGB32_Premultiplied);
    image.setDevicePixelRatio(kPictureScale);
    image.fill(Qt::white);
    {
        QPainter painter(&image);
        DrawSteps(painter, QRectF(QPointF(), size), {width, height}, drawing);
    }
    QBuffer buffer;
    buffer.open(QIODevice::WriteOnly);
    image.save(&buffer, "PNG");
    WriteChosenFile(Ports().files, path, BytesOf(buffer.data().toStdString()));
}

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
    QPrintPreviewDialog dialog(&printer, QApplication::activeWindow());
    QObject::connect(&dialog, &QPrintPreviewDialog::paintRequested,
                     [&](QPrinter* target) { DrawOn(*target, year, month); });
    dialog.exec();
}

void PrintMonth(const PrintedYear& year, int month) {
    QPrinter printer(QPrinter::HighResolution);
    SetUpPage(printer);
    QPrintDialog dialog(&printer, QApplication::activeWindow());
    if (dialog.exec() == QDialog::Accepted) {
        DrawOn(printer, year, month);
    }
}

}  // namespace

void InstallDesktopDocuments() {
    InstallDocumentTools({WritePdf, WritePng, PreviewMonth, PrintMonth});
}

}  // namespace horavex
