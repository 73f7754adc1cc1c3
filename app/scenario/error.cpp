#include "scenario/error.h"

#include <algorithm>
#include <cctype>

namespace {

constexpr std::size_t LongestMessage = 1000;

/// A message quotes what the file says; it stays one line that a person can read.
std::string OneLine(std::string text) {
    if (text.size() > LongestMessage) {
        text = text.substr(0, LongestMessage) + "...";
    }
    const auto bControl = [](char c) { return std::iscntrl(static_cast<unsigned char>(c)) != 0; };
    std::replace_if(text.begin(), text.end(), bControl, '?');
    return text;
}

} // namespace

CScenarioError::CScenarioError(const std::string& text) : std::runtime_error(OneLine(text)) {}
