#pragma once

#include <algorithm>
#include <cmath>

namespace platform::qt {

// Pixels a twip on the original screens: 15 twips a pixel, enlarged for today's screens.
constexpr double kBaseScale = 1.25;

// The smallest text the program shrinks a form to, in pixels on the screen: below it a form
// that does not fit keeps this size and scrolls instead.
constexpr double kLegibleTextPixels = 10.0;
// The program's usual text, 8.25 points, in pixels at a scale of 1.
constexpr double kDefaultTextPixels = 8.25 * 96.0 / 72.0;
// How far a window dragged larger than its form grows the form.
constexpr double kLargestScale = 4 * kBaseScale;

// Twips to pixels for one window. A form keeps its layout in twips; the window grows or
// shrinks all of it together (geometry, fonts and pictures) to fit the screen or the size
// the user drags it to.
struct Scale {
    double x = kBaseScale;
    double y = kBaseScale;

    int X(double twips) const { return static_cast<int>(std::lround(twips / 15.0 * x)); }
    int Y(double twips) const { return static_cast<int>(std::lround(twips / 15.0 * y)); }
    // Text is never stretched: it takes the smaller of the two factors, so it fits both ways.
    double Text() const { return std::min(x, y); }
    double FontPixels(double points) const { return points * 96.0 / 72.0 * Text(); }
    double TwipsX(double pixels) const { return pixels / x * 15.0; }
    double TwipsY(double pixels) const { return pixels / y * 15.0; }
    bool operator==(const Scale& other) const = default;
};

}  // namespace platform::qt
