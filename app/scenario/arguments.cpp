#include "scenario/arguments.h"

#include <algorithm>
#include <cctype>
#include <climits>

#include "scenario/error.h"
#include "scenario/keys.h"

namespace {

constexpr int FarthestClient = 32767;

/// One would break the line in which the name is printed.
bool HasControls(const std::string& text) {
    return std::any_of(text.begin(), text.end(),
                       [](char c) { return std::iscntrl(static_cast<unsigned char>(c)) != 0; });
}

} // namespace

const Token& CArguments::Any(const char* pszWhat) {
    if (AtEnd()) {
        Fail(std::string(pszWhat) + " is missing");
    }
    return m_tokens[m_nAt++];
}

bool CArguments::NextIsWord(const char* pszWord) const {
    return NextIs(TokenKind::Word) && m_tokens[m_nAt].text == pszWord;
}

std::string CArguments::Name(const char* pszWhat) {
    const Token& token = Any(pszWhat);
    const bool bName =
        token.kind == TokenKind::Word || token.kind == TokenKind::String || token.kind == TokenKind::Number;
    if (!bName || token.text.empty() || HasControls(token.text)) {
        Fail(std::string(pszWhat) + " is no name");
    }
    return token.text;
}

std::string CArguments::String(const char* pszWhat) {
    const Token& token = Any(pszWhat);
    if (token.kind != TokenKind::String) {
        Fail(std::string(pszWhat) + " is no string in quotes");
    }
    return token.text;
}

int CArguments::Int(const char* pszWhat) { return IntIn(pszWhat, INT_MIN, INT_MAX); }

int CArguments::IntIn(const char* pszWhat, int nMin, int nMax) {
    const double dNumber = Double(pszWhat);
    const bool bWhole = m_tokens[m_nAt - 1].whole;
    if (!bWhole || dNumber < INT_MIN || dNumber > INT_MAX) {
        Fail(std::string(pszWhat) + " is no whole number");
    }
    if (dNumber < nMin || dNumber > nMax) {
        Fail(std::string(pszWhat) + " is out of range");
    }
    return static_cast<int>(dNumber);
}

double CArguments::Double(const char* pszWhat) {
    const Token& token = Any(pszWhat);
    if (token.kind != TokenKind::Number) {
        Fail(std::string(pszWhat) + " is no number");
    }
    return token.number;
}

CPoint CArguments::Point(const char* pszWhat) {
    const int nX = Int(pszWhat);
    return CPoint(nX, Int(pszWhat));
}

CPoint CArguments::ClientPoint(const char* pszWhat) {
    const int nX = IntIn(pszWhat, -FarthestClient, FarthestClient);
    return CPoint(nX, IntIn(pszWhat, -FarthestClient, FarthestClient));
}

COLORREF CArguments::Color(const char* pszWhat) {
    const Token& token = Any(pszWhat);
    if (token.kind != TokenKind::Color) {
        Fail(std::string(pszWhat) + " is no colour (#RRGGBB)");
    }
    return token.color;
}

GUID CArguments::Guid(const char* pszWhat) {
    const Token& token = Any(pszWhat);
    if (token.kind != TokenKind::Guid) {
        Fail(std::string(pszWhat) + " is no GUID");
    }
    return token.guid;
}

RECT CArguments::Rect(const char* pszWhat) {
    const Token& token = Any(pszWhat);
    if (token.kind != TokenKind::List || token.items.size() != 4) {
        Fail(std::string(pszWhat) + " is no rectangle ([l,t,r,b])");
    }
    LONG edges[4] = {};
    for (std::size_t n = 0; n < 4; n++) {
        const Token& item = token.items[n];
        if (!item.whole || item.number < INT_MIN || item.number > INT_MAX) {
            Fail(std::string(pszWhat) + " is no rectangle ([l,t,r,b])");
        }
        edges[n] = static_cast<LONG>(item.number);
    }
    return {edges[0], edges[1], edges[2], edges[3]};
}

std::vector<std::string> CArguments::Names(const char* pszWhat) {
    if (!NextIs(TokenKind::List)) {
        return {Name(pszWhat)};
    }
    std::vector<std::string> names;
    for (const Token& item : Any(pszWhat).items) {
        names.push_back(item.text);
    }
    return names;
}

int CArguments::Key() {
    if (NextIs(TokenKind::Number)) {
        return IntIn("KEY", 1, 255);
    }
    const int nKey = KeyOfName(Name("KEY"));
    if (nKey == 0) {
        Fail("KEY is none of LEFT UP RIGHT DOWN HOME END ENTER ESC BACKSPACE DELETE TAB, a letter or a code");
    }
    return nKey;
}

bool CArguments::TakeWord(const char* pszWord) {
    if (!NextIsWord(pszWord)) {
        return false;
    }
    m_nAt++;
    return true;
}

int CArguments::OneOf(const char* pszWhat, std::initializer_list<const char*> words) {
    const Token& token = Any(pszWhat);
    int n = 0;
    for (const char* pszWord : words) {
        if (token.kind != TokenKind::String && token.text == pszWord) {
            return n;
        }
        n++;
    }
    Fail(std::string(pszWhat) + " is unknown: " + token.text);
}

void CArguments::End() const {
    if (!AtEnd()) {
        Fail("too many arguments, from " + m_tokens[m_nAt].text);
    }
}

void CArguments::Fail(const std::string& problem) const {
    throw CScenarioError(problem + "; usage: " + m_usage);
}
