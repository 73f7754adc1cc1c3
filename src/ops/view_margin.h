// How much of an object stays in sight.
#pragma once

/// Client pixels of the view's edge within which a moved, aligned or dragged object stays visible, by which a
/// handle stays away from the view's far side, and which are repainted round an outline that is dragged.
inline constexpr int ViewMargin = 8;
