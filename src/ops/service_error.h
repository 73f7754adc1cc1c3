// The error codes of the operations that the host calls with an error pointer.
#pragma once

#include <cstdint>

namespace service_error {
inline constexpr std::int32_t None = 0;
inline constexpr std::int32_t NullArgument = 1;
inline constexpr std::int32_t NoBuffer = 2;
inline constexpr std::int32_t Failed = 3;
} // namespace service_error

/// Writes the error where the caller wants it and gives the operation's answer: 1 without one, else 0.
inline int AnswerWith(std::int32_t nError, std::int32_t* pError) {
    if (pError) {
        *pError = nError;
    }
    return nError == service_error::None ? 1 : 0;
}
