#pragma once

#include <algorithm>
#include <cmath>

namespace platform::qt {

// Pixels a twip on the original screens: 15 twips a pixel, enlarged for today's screens.
constexpr double kBaseScale = 1.25;

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
    int FontPixels(double points) const {
        return std::max(1, static_cast<int>(std::lround(points * 96.0 / 72.0 * Text())));
    }
    double TwipsX(double pixels) const { return pixels / x * 15.0; }
    double TwipsY(double pixels) const { return pixels / y * 15.0; }
    bool operator==(const Scale& other) const = default;
};

}  // namespace platform::qt
