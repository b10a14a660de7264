#include "desktop/documents/pdf_file.h"

#include <QBuffer>
#include <QPageLayout>
#include <QPdfWriter>

#include "desktop/documents/month_page.h"
#include "desktop/documents/usual_paper.h"
#include "desktop/user_text.h"
#include "platform/platform.h"

namespace horavex {

namespace {

constexpr int kDotsPerInch = 600;
constexpr double kMargin = 15.0;  // millimetres

QPageSize SizeOf(PaperSize paper) {
    switch (paper) {
        case PaperSize::kA4:
            return QPageSize(QPageSize::A4);
        case PaperSize::kLetter:
            return QPageSize(QPageSize::Letter);
        case PaperSize::kUsual:
            break;
    }
    return UsualPaper();
}

QPageLayout LayoutOf(PaperSize paper) {
    return {SizeOf(paper), QPageLayout::Portrait, QMarginsF(kMargin, kMargin, kMargin, kMargin),
            QPageLayout::Millimeter};
}

void DrawPages(QPdfWriter& writer, const PrintedYear& year) {
    QPainter painter(&writer);
    for (int month = 1; month <= 12; ++month) {
        if (month > 1) {
            writer.newPage();
        }
        DrawMonthPage(painter, QRectF(0.0, 0.0, writer.width(), writer.height()), kDotsPerInch,
                      year, month);
    }
}

}  // namespace

void WritePdf(const std::string& path, const PrintedYear& year) {
    QBuffer buffer;
    buffer.open(QIODevice::WriteOnly);
    {
        QPdfWriter writer(&buffer);
        writer.setResolution(kDotsPerInch);
        writer.setPageLayout(LayoutOf(year.paper));
        writer.setCreator(QStringLiteral("Horavex"));
        writer.setTitle(UserText(year.words.title + " " + std::to_string(year.table.year) +
                                 year.words.comma + year.table.place));
        DrawPages(writer, year);
    }
    const QByteArray& bytes = buffer.data();
    WriteChosenFile(Ports().files, path, BytesOf(bytes.toStdString()));
}

}  // namespace horavex
