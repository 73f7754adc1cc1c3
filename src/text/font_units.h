// Font sizes in points and in pixels, at the display's vertical resolution.
#pragma once

namespace font_units {

/// Pixels of a size in points: points times dpi by 72, rounded.
int PointsToPixels(int nPoints);
/// The nearest size in points: pixels times 72 by dpi, rounded.
int PixelsToNearestPoints(int nPixels);

} // namespace font_units
