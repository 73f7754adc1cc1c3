// A scenario's line in tokens.
#pragma once

#include <string>
#include <vector>

#include <windows.h>

enum class TokenKind { Word, Number, String, Color, Guid, List };

struct Token {
    TokenKind kind = TokenKind::Word;
    std::string text; ///< as written; of a string its bytes, of a GUID its form in capitals
    double number = 0.0;
    bool whole = false; ///< a number without a fraction
    COLORREF color = 0;
    GUID guid{};
    std::vector<Token> items; ///< of a list
};

struct LexedLine {
    std::string command; ///< the line without its comment and the blanks around it
    std::vector<Token> tokens;
};

/// Splits a line. Throws CScenarioError for a string, list or GUID that does not end or is malformed.
LexedLine Lex(const std::string& line);
/// The token of one word of a command line, in which a shell has already taken quotes away: a number, a
/// colour, or else a word, whatever stands in it.
Token LexArgument(const std::string& text);
/// The bytes of the string whose opening quote stands at `nAt`, which moves behind the closing one. Throws
/// CScenarioError for one that does not end or has an unknown escape.
std::string ReadString(const std::string& text, std::size_t& nAt);
