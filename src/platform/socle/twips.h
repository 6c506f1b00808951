#pragma once

#include <cmath>

/// Screen measures are kept in twips wherever the program reckons with them.
constexpr int TwipsParPixel = 15;

/// Pixels for a measure in twips, rounded to the nearest.
inline int enPixels(int twips)
{
    return int(std::lround(double(twips) / TwipsParPixel));
}

/// Twips for a measure in pixels.
constexpr int enTwips(int pixels)
{
    return pixels * TwipsParPixel;
}
