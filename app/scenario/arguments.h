// Reading a command's arguments one after the other.
#pragma once

#include <optional>
#include <string>
#include <vector>

#include <afxwin.h>

#include "scenario/lexer.h"

/// The arguments of one command. A taking function throws CScenarioError, with the command's usage, when the
/// next argument is missing or of another kind.
class CArguments {
  public:
    /// The tokens are not owned; the first one is the command's name.
    CArguments(const std::vector<Token>& tokens, const char* pszUsage)
        : m_tokens(tokens), m_usage(pszUsage) {}

    bool AtEnd() const { return m_nAt >= m_tokens.size(); }
    /// The next token, whatever it is.
    const Token& Any(const char* pszWhat);
    /// Whether the next token is there and of the kind.
    bool NextIs(TokenKind kind) const { return !AtEnd() && m_tokens[m_nAt].kind == kind; }
    /// Whether the next token is the bare word, which is not taken.
    bool NextIsWord(const char* pszWord) const;

    /// A name or file: bare or in quotes, without control characters.
    std::string Name(const char* pszWhat);
    /// A string in quotes.
    std::string String(const char* pszWhat);
    int Int(const char* pszWhat);
    /// A whole number from `nMin` to `nMax`.
    int IntIn(const char* pszWhat, int nMin, int nMax);
    double Double(const char* pszWhat);
    CPoint Point(const char* pszWhat);
    /// A point of the view that a window message can carry: 16 bits a side.
    CPoint ClientPoint(const char* pszWhat);
    COLORREF Color(const char* pszWhat);
    GUID Guid(const char* pszWhat);
    RECT Rect(const char* pszWhat);
    /// The names of a list, or the one name that stands for a list of one.
    std::vector<std::string> Names(const char* pszWhat);
    /// A virtual-key code: a key's name, a letter, or a number.
    int Key();

    /// Takes the bare word when it comes next.
    bool TakeWord(const char* pszWord);
    /// One of the words, by its place among them.
    int OneOf(const char* pszWhat, std::initializer_list<const char*> words);
    /// Nothing may follow.
    void End() const;
    [[noreturn]] void Fail(const std::string& problem) const;

  private:
    const std::vector<Token>& m_tokens;
    std::size_t m_nAt = 1;
    const char* m_usage;
};
