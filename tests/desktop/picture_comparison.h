#pragma once

#include <QImage>

namespace horavex {

/// How much of a picture is another one.
struct PictureDifference {
    double share = 0.0;  // of the dots, from 0 to 1; 1 for pictures of different sizes
    QImage marked;       // the second picture, pale, with the dots that differ in red
};

/// A dot differs where a colour of it does so by more than a step, which the edges of letters may
/// do from one drawing library to the next.
PictureDifference Compare(const QImage& kept, const QImage& present);

}  // namespace horavex
