#pragma once

namespace horavex {

// Whether a young crescent can be seen, by two published criteria. Each weighs how high the moon
// stands over the sun against how wide its crescent is, at the best time to look.

enum class Criterion { kYallop, kOdeh };

/// A criterion's number, and the letter of the class that it falls in: A is seen easily.
struct Verdict {
    double value;
    char letter;
};

/// B. D. Yallop, A Method for Predicting the First Sighting of the New Crescent Moon, NAO Technical
/// Note 69 (1997, 1998): the number q, by the arc of vision as the centre of the Earth sees it,
/// degrees, and the width of the crescent, minutes of arc. A easily visible; B visible in a clear
/// sky; C may need, D will need optical aid; E not visible with a telescope; F below the limit of
/// Danjon.
Verdict YallopVerdict(double arcOfVision, double width);

/// M. Sh. Odeh, New Criterion for Lunar Crescent Visibility, Experimental Astronomy 18 (2004): the
/// number V, by the arc of vision as the observer would see it without air, degrees, and the width,
/// minutes of arc. A visible by naked eye; B by optical aid and perhaps by naked eye; C by optical
/// aid alone; D not visible.
Verdict OdehVerdict(double arcOfVision, double width);

}  // namespace horavex
