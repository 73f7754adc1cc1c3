#include "scenario/lexer.h"

#include <cctype>
#include <cmath>
#include <cstdlib>

#include "desk/guid_text.h"
#include "scenario/error.h"

namespace {

bool IsBlank(char c) { return c == ' ' || c == '\t' || c == '\r'; }

bool IsHex(char c) { return std::isxdigit(static_cast<unsigned char>(c)) != 0; }

/// Whether the six characters from there on are hexadecimal digits.
bool SixDigits(const std::string& text, std::size_t nAt) {
    if (text.size() < nAt + 6) {
        return false;
    }
    for (std::size_t n = nAt; n < nAt + 6; n++) {
        if (!IsHex(text[n])) {
            return false;
        }
    }
    return true;
}

COLORREF ColorOf(const std::string& digits) {
    const unsigned long nRgb = std::strtoul(digits.c_str(), nullptr, 16);
    return RGB(static_cast<int>(nRgb >> 16), static_cast<int>((nRgb >> 8) & 0xFF),
               static_cast<int>(nRgb & 0xFF));
}

/// Lists in lists in lists: deeper ones are a slip, and each takes room on the stack.
constexpr int DeepestList = 16;
constexpr std::size_t ColorLength = 7;

char HexEscape(const std::string& text, std::size_t& nAt) {
    if (nAt + 1 >= text.size() || !IsHex(text[nAt]) || !IsHex(text[nAt + 1])) {
        throw CScenarioError("\\x needs two hexadecimal digits");
    }
    const unsigned long nByte = std::strtoul(text.substr(nAt, 2).c_str(), nullptr, 16);
    nAt += 2;
    return static_cast<char>(static_cast<unsigned char>(nByte));
}

char Escape(const std::string& text, std::size_t& nAt) {
    const char c = nAt + 1 < text.size() ? text[nAt + 1] : '\0';
    nAt += 2;
    switch (c) {
    case 'n': return '\n';
    case 'r': return '\r';
    case 't': return '\t';
    case '"':
    case '\\': return c;
    case 'x': return HexEscape(text, nAt);
    default: throw CScenarioError("an escape in a string is none of \\n \\r \\t \\\" \\\\ \\xHH");
    }
}

/// Makes the word a number if it is one.
void ReadNumber(Token& token) {
    const char c = token.text[0];
    if (c != '-' && c != '+' && c != '.' && !std::isdigit(static_cast<unsigned char>(c))) {
        return;
    }
    if (token.text.find_first_not_of("0123456789+-.eE") != std::string::npos) {
        return;
    }
    char* pEnd = nullptr;
    token.number = std::strtod(token.text.c_str(), &pEnd);
    if (*pEnd != '\0' || !std::isfinite(token.number)) {
        return;
    }
    token.kind = TokenKind::Number;
    token.whole = token.number == std::trunc(token.number);
}

class CLexer {
  public:
    explicit CLexer(const std::string& line) : m_line(line) {}

    LexedLine Run() {
        LexedLine lexed;
        while (SkipBlanks()) {
            lexed.tokens.push_back(Next(false));
        }
        std::size_t nEnd = m_nAt;
        while (nEnd > 0 && IsBlank(m_line[nEnd - 1])) {
            nEnd--;
        }
        const std::size_t nStart = m_line.find_first_not_of(" \t\r");
        lexed.command = nStart < nEnd ? m_line.substr(nStart, nEnd - nStart) : std::string();
        return lexed;
    }

  private:
    bool AtEnd() const { return m_nAt >= m_line.size(); }
    char Here() const { return m_line[m_nAt]; }
    bool EndsToken(std::size_t nAt, bool bInList) const {
        return nAt >= m_line.size() || IsBlank(m_line[nAt]) ||
               (bInList && (m_line[nAt] == ']' || m_line[nAt] == ','));
    }
    bool IsColorHere(bool bInList) const {
        return SixDigits(m_line, m_nAt + 1) && EndsToken(m_nAt + ColorLength, bInList);
    }

    /// False at the line's end or at a comment.
    bool SkipBlanks() {
        while (!AtEnd() && IsBlank(Here())) {
            m_nAt++;
        }
        return !AtEnd() && (Here() != '#' || IsColorHere(false));
    }

    Token Next(bool bInList) {
        switch (Here()) {
        case '"': return String(bInList);
        case '[': return List(bInList);
        case '{': return Guid(bInList);
        case '#': return Color();
        default: return Word(bInList);
        }
    }

    Token Color() {
        Token token;
        token.kind = TokenKind::Color;
        token.text = m_line.substr(m_nAt, ColorLength);
        token.color = ColorOf(m_line.substr(m_nAt + 1, 6));
        m_nAt += ColorLength;
        return token;
    }

    Token String(bool bInList) {
        Token token;
        token.kind = TokenKind::String;
        token.text = ReadString(m_line, m_nAt);
        if (!EndsToken(m_nAt, bInList)) {
            throw CScenarioError("a blank is missing behind a string");
        }
        return token;
    }

    Token List(bool bInList) {
        if (++m_nDepth > DeepestList) {
            throw CScenarioError("lists stand too deep in each other");
        }
        Token token;
        token.kind = TokenKind::List;
        const std::size_t nStart = m_nAt++;
        for (;;) {
            while (!AtEnd() && (IsBlank(Here()) || Here() == ',')) {
                m_nAt++;
            }
            if (AtEnd()) {
                throw CScenarioError("a list does not end");
            }
            if (Here() == ']') {
                break;
            }
            if (Here() == '#' && !IsColorHere(true)) {
                throw CScenarioError("a list does not end");
            }
            token.items.push_back(Next(true));
        }
        m_nAt++;
        m_nDepth--;
        if (!EndsToken(m_nAt, bInList)) {
            throw CScenarioError("a blank is missing behind a list");
        }
        token.text = m_line.substr(nStart, m_nAt - nStart);
        return token;
    }

    Token Guid(bool bInList) {
        const std::size_t nEnd = m_line.find('}', m_nAt);
        Token token;
        token.kind = TokenKind::Guid;
        token.text = m_line.substr(m_nAt, nEnd == std::string::npos ? nEnd : nEnd + 1 - m_nAt);
        if (!ParseGuid(token.text, token.guid) || !EndsToken(nEnd + 1, bInList)) {
            throw CScenarioError("a GUID is malformed");
        }
        token.text = GuidText(token.guid);
        m_nAt = nEnd + 1;
        return token;
    }

    /// A string behind a bracket belongs to the word, so that a path can name any node.
    Token Word(bool bInList) {
        const std::size_t nStart = m_nAt;
        while (!EndsToken(m_nAt, bInList)) {
            if (Here() == '"' && m_nAt > nStart && m_line[m_nAt - 1] == '[') {
                ReadString(m_line, m_nAt);
            } else {
                m_nAt++;
            }
        }
        Token token;
        token.text = m_line.substr(nStart, m_nAt - nStart);
        ReadNumber(token);
        return token;
    }

    const std::string& m_line;
    std::size_t m_nAt = 0;
    int m_nDepth = 0; ///< of the lists around the place
};

} // namespace

std::string ReadString(const std::string& text, std::size_t& nAt) {
    std::string bytes;
    nAt++;
    while (nAt < text.size() && text[nAt] != '"') {
        bytes += text[nAt] == '\\' ? Escape(text, nAt) : text[nAt++];
    }
    if (nAt >= text.size()) {
        throw CScenarioError("a string does not end");
    }
    nAt++;
    return bytes;
}

Token LexArgument(const std::string& text) {
    Token token;
    token.text = text;
    if (text.size() == ColorLength && text[0] == '#' && SixDigits(text, 1)) {
        token.kind = TokenKind::Color;
        token.color = ColorOf(text.substr(1));
    } else if (!text.empty()) {
        ReadNumber(token);
    }
    return token;
}

LexedLine Lex(const std::string& line) { return CLexer(line).Run(); }
