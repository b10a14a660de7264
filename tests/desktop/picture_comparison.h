#pragma once

#include <QImage>

namespace horavex {

/// How much of a picture is another one.
struct PictureDifference {
    /// Those that differ, in the square of 32 x 32 in which most do; 1024 where sizes differ.
    int dots = 0;
    QImage marked;  // the second picture, pale, with the dots that differ in red
};

/// A dot differs where a colour of it does so by more than a step, which the edges of letters may
/// do from one drawing library to the next. Squares overlap by a half, so that a digit lies within
/// one of them: of a picture it is nothing, of its square much.
PictureDifference Compare(const QImage& kept, const QImage& present);

}  // namespace horavex
