// What font sizes are counted in.
#pragma once

inline constexpr int PointsPerInch = 72;
inline constexpr int TwipsPerInch = 1440;
