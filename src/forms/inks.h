#pragma once

#include "forms/drawing.h"

/// The colours of drawings by what they stand for, as they are on paper and in a light window. A
/// front end knows some of them by their value and has others in their place in a dark window, so
/// that no two of those may be alike; all the rest are the same everywhere. Beside them black and
/// white stand for the text and the ground of a window.
namespace horavex::ink {

inline constexpr Colour kMark{190, 30, 30};    // where one is, and where one is to look
inline constexpr Colour kAccent{30, 72, 118};  // what is told apart from the rest
inline constexpr Colour kScale{90, 90, 90};    // strokes and numbers of a scale

// Documents.
inline constexpr Colour kPageText{26, 31, 38};
inline constexpr Colour kPageShade{232, 239, 246};  // behind what is set off
inline constexpr Colour kPageRule{185, 195, 207};

// Maps of the world.
inline constexpr Colour kSea{206, 226, 240};
inline constexpr Colour kLand{226, 219, 196};
inline constexpr Colour kCoast{122, 112, 84};

// The map of a crescent. From one that is seen easily to one that is not there; the lightness
// changes with the hue.
inline constexpr Colour kYallop[] = {{27, 120, 55},  {127, 191, 90},  {245, 220, 80},
                                     {245, 160, 70}, {222, 175, 160}, {214, 214, 214}};
inline constexpr Colour kOdeh[] = {{27, 120, 55}, {127, 191, 90}, {245, 160, 70}, {214, 214, 214}};
inline constexpr Colour kMoonSetsFirst{186, 172, 205};
inline constexpr Colour kBeforeNewMoon{125, 128, 160};
inline constexpr Colour kUnjudged{240, 245, 250};
inline constexpr Colour kOutline{20, 24, 28};     // of lands below all of these
inline constexpr Colour kDegrees{254, 254, 254};  // their lines, light on dark ground, too

// The moon.
inline constexpr Colour kMoonDark{58, 64, 82};
inline constexpr Colour kMoonLit{250, 240, 205};
inline constexpr Colour kMoonRim{120, 124, 140};
inline constexpr Colour kMoonDown{38, 50, 92};
inline constexpr Colour kMoonUp{232, 214, 140};

// The compass of the qibla.
inline constexpr Colour kSun{250, 190, 20};
inline constexpr Colour kSunRim{190, 112, 0};

// The heights of a day: the deep sky of the face, and what moves over it.
inline constexpr Colour kDay{24, 77, 120};
inline constexpr Colour kCivil{92, 66, 96};
inline constexpr Colour kNautical{54, 52, 98};
inline constexpr Colour kAstronomical{30, 38, 74};
inline constexpr Colour kNight{12, 24, 44};
inline constexpr Colour kHorizon{244, 238, 223};
inline constexpr Colour kLevel{64, 112, 152};
inline constexpr Colour kSunPath{255, 223, 140};
inline constexpr Colour kMoonPath{204, 216, 230};
inline constexpr Colour kNow{255, 140, 120};

// The chart of a year, from the night over the day to the night.
inline constexpr Colour kChartPaper{250, 250, 247};
inline constexpr Colour kChartText{40, 46, 54};
inline constexpr Colour kChartGrid{150, 156, 168};
inline constexpr Colour kChartNight{23, 32, 56};
inline constexpr Colour kDawn{84, 98, 150};
inline constexpr Colour kMorning{253, 230, 138};
inline constexpr Colour kNoon{252, 211, 77};
inline constexpr Colour kAfternoon{245, 158, 66};
inline constexpr Colour kDusk{112, 84, 142};
inline constexpr Colour kOnDark{244, 238, 223};  // names on the bands
inline constexpr Colour kOnLight{24, 34, 50};
inline constexpr Colour kToday{200, 24, 32};

// The bar of the progress, and the emblem.
inline constexpr Colour kBar{250, 250, 250};
inline constexpr Colour kEmblemSky{18, 43, 74};
inline constexpr Colour kEmblemLight{227, 192, 108};

}  // namespace horavex::ink
