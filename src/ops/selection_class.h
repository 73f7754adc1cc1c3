// What `ClassifySelection` and `ClassifyNodes` answer.
#pragma once

namespace selection_class {
inline constexpr int Nothing = 0;
inline constexpr int OneText = 1;
inline constexpr int SeveralTexts = 2;
inline constexpr int OneOther = 3;
inline constexpr int SeveralOthers = 4;
inline constexpr int Mixed = 5;
} // namespace selection_class
