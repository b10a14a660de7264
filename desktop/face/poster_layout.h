#pragma once

#include <QColor>
#include <QRectF>
#include <QSize>
#include <QString>
#include <vector>

namespace horavex {

struct FaceDay;

/// A text of the poster, in the middle of an area that holds it.
struct PosterText {
    QRectF area;
    int pixels;  // of its type
    QColor colour;
    QString text;
    bool bold = false;
};

/// The dates in words.
struct PosterDates {
    QString weekday;
    QString date;
    QString hijri;

    bool operator==(const PosterDates&) const = default;
};

/// Where the poster's texts stand on a screen, and how large they are: type is a part of the
/// height, or of half the width where that is less. Texts side by side have one size, the largest
/// in which none of them would be cut.
class PosterLayout {
public:
    static constexpr std::size_t kCells = 6;

    explicit PosterLayout(QSize screen);

    QRect StarsArea() const;
    QRect CountdownArea() const;
    /// Of a prayer: side by side from the left, or from the right in a script that begins there.
    QRectF Cell(std::size_t prayer, Qt::LayoutDirection direction) const;

    /// The countdown, behind what it goes to.
    std::vector<PosterText> Countdown(const FaceDay& day) const;
    /// All besides it.
    std::vector<PosterText> Rest(const FaceDay& day, const PosterDates& dates) const;

private:
    QRectF Line(double top, double height) const;
    PosterText Wanted(const QRectF& area, double part, const QColor& colour, const QString& text,
                      bool bold = false) const;
    void AddDates(std::vector<PosterText>& texts, const PosterDates& dates) const;
    void AddPrayers(std::vector<PosterText>& texts, const FaceDay& day) const;
    /// From top to bottom, parts of the height; atEdges: what stays free beside it, of the unit.
    QRectF PartOfCell(const QRectF& cell, double top, double bottom, double atEdges) const;

    QSizeF screen_;
    double unit_;  // pixels, of which type and gaps are parts
};

}  // namespace horavex
