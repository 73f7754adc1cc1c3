#include "scenario/expect.h"

#include <algorithm>
#include <cctype>
#include <cstdlib>

#include "code_page.h"
#include "scenario/error.h"

namespace {

/// One step of a path: `.name`, `["name"]` or `[number]`.
struct Step {
    std::string name;
    bool bIndex = false;
    std::size_t nIndex = 0;
};

class CPathReader {
  public:
    explicit CPathReader(const std::string& path) : m_path(path) {}

    std::string Root() {
        const std::size_t nEnd = m_path.find_first_of(".[");
        m_nAt = nEnd == std::string::npos ? m_path.size() : nEnd;
        return m_path.substr(0, m_nAt);
    }

    bool AtEnd() const { return m_nAt >= m_path.size(); }

    Step Next() { return m_path[m_nAt] == '.' ? Named() : Bracketed(); }

  private:
    Step Named() {
        const std::size_t nStart = m_nAt + 1;
        const std::size_t nEnd = m_path.find_first_of(".[", nStart);
        m_nAt = nEnd == std::string::npos ? m_path.size() : nEnd;
        if (m_nAt == nStart) {
            Malformed();
        }
        return {ToUtf8(m_path.substr(nStart, m_nAt - nStart)), false, 0};
    }

    Step Bracketed() {
        if (m_path[m_nAt++] != '[' || AtEnd()) {
            Malformed();
        }
        const Step step = m_path[m_nAt] == '"' ? Quoted() : Numbered();
        if (AtEnd() || m_path[m_nAt++] != ']') {
            Malformed();
        }
        return step;
    }

    Step Quoted() { return {ToUtf8(ReadString(m_path, m_nAt)), false, 0}; }

    Step Numbered() {
        const std::size_t nEnd = std::min(m_path.find_first_not_of("0123456789", m_nAt), m_path.size());
        const std::string digits = m_path.substr(m_nAt, nEnd - m_nAt);
        if (digits.empty() || digits.size() > 9) {
            Malformed();
        }
        m_nAt = nEnd;
        return {digits, true, static_cast<std::size_t>(std::strtoul(digits.c_str(), nullptr, 10))};
    }

    [[noreturn]] void Malformed() const { throw CScenarioError("the path is malformed: " + m_path); }

    const std::string& m_path;
    std::size_t m_nAt = 0;
};

Json ElementNamed(const Json& list, const std::string& name) {
    for (const Json& element : list) {
        if (element.is_object() && element.contains("name") && element["name"] == name) {
            return element;
        }
    }
    return nullptr;
}

Json Follow(const Json& json, const Step& step) {
    if (step.bIndex) {
        return json.is_array() && step.nIndex < json.size() ? json[step.nIndex] : Json(nullptr);
    }
    if (json.is_object() && json.contains(step.name)) {
        return json[step.name];
    }
    if (step.name == "length" && (json.is_array() || json.is_object())) {
        return json.size();
    }
    if (step.name == "length" && json.is_string()) {
        return json.get_ref<const std::string&>().size();
    }
    if (json.is_object() && json.contains("nodes")) {
        return ElementNamed(json["nodes"], step.name);
    }
    return json.is_array() ? ElementNamed(json, step.name) : Json(nullptr);
}

/// Text that is JSON (a number, a rectangle) as that, `none` and nothing as null, else as text.
Json AnswerJson(const std::string& text) {
    if (text.empty() || text == "none") {
        return nullptr;
    }
    const Json json = Json::parse(text, nullptr, false);
    return json.is_discarded() ? Json(ToUtf8(text)) : json;
}

Json LastJson(const Answer& last, CPathReader& reader) {
    if (reader.AtEnd()) {
        return AnswerJson(last.result);
    }
    const std::string name = reader.Next().name;
    for (const auto& [pairName, value] : last.pairs) {
        if (pairName == name) {
            return AnswerJson(value);
        }
    }
    return name == "error" ? Json(0) : Json(nullptr);
}

Json TokenJson(const Token& token) {
    switch (token.kind) {
    case TokenKind::Number:
        return token.whole ? Json(static_cast<long long>(token.number)) : Json(token.number);
    case TokenKind::Color: return ColorText(token.color);
    case TokenKind::String: return ToUtf8(token.text);
    case TokenKind::Guid: return token.text;
    case TokenKind::List: {
        Json list = Json::array();
        for (const Token& item : token.items) {
            list.push_back(TokenJson(item));
        }
        return list;
    }
    case TokenKind::Word: break;
    }
    if (token.text == "none" || token.text == "null") {
        return nullptr;
    }
    if (token.text == "true" || token.text == "false") {
        return token.text == "true";
    }
    return ToUtf8(token.text);
}

/// 0 and 1 are the numbers of false and true.
Json Plain(const Json& json) { return json.is_boolean() ? Json(json.get<bool>() ? 1 : 0) : json; }

bool Equal(const Json& found, const Json& value) { return found == value || Plain(found) == Plain(value); }

bool Contains(const Json& found, const Json& value) {
    if (found.is_string() && value.is_string()) {
        return found.get_ref<const std::string&>().find(value.get_ref<const std::string&>()) !=
               std::string::npos;
    }
    if (!found.is_array()) {
        return false;
    }
    for (const Json& element : found) {
        if (Equal(element, value)) {
            return true;
        }
    }
    return false;
}

/// -1, 0 or 1 for two numbers or two texts; 2 for what has no order.
int Order(const Json& found, const Json& value) {
    const Json a = Plain(found);
    const Json b = Plain(value);
    if ((a.is_number() && b.is_number()) || (a.is_string() && b.is_string())) {
        return a < b ? -1 : (b < a ? 1 : 0);
    }
    return 2;
}

int Distance(int a, int b) { return a < b ? b - a : a - b; }

bool SameColor(COLORREF a, COLORREF b, int nTolerance) {
    return Distance(GetRValue(a), GetRValue(b)) <= nTolerance &&
           Distance(GetGValue(a), GetGValue(b)) <= nTolerance &&
           Distance(GetBValue(a), GetBValue(b)) <= nTolerance;
}

void ExpectPixel(CRunner& run, CArguments& args) {
    const CPoint point = args.Point("X Y");
    const bool bSame = args.OneOf("== or !=", {"==", "!="}) == 0;
    const COLORREF crWanted = args.Color("#RRGGBB");
    const int nTolerance = args.TakeWord("tolerance") ? args.IntIn("N", 0, 255) : 0;
    args.End();
    const COLORREF crFound = run.Stage().Pixel(point.x, point.y);
    if (crFound == CLR_INVALID) {
        throw CScenarioError("the pixel lies outside the view");
    }
    if (SameColor(crFound, crWanted, nTolerance) != bSame) {
        throw CExpectationFailed("expected pixel " + std::to_string(point.x) + " " + std::to_string(point.y) +
                                 (bSame ? " == " : " != ") + ColorText(crWanted) + ", found " +
                                 ColorText(crFound));
    }
}

} // namespace

Json Resolve(CRunner& run, const std::string& path) {
    CPathReader reader(path);
    const std::string root = reader.Root();
    if (root == "last") {
        return LastJson(run.Last(), reader);
    }
    Json json;
    if (!Dump(run.Stage(), root, Records::Keep, json)) {
        throw CScenarioError("no dump is called " + root);
    }
    while (!reader.AtEnd()) {
        json = Follow(json, reader.Next());
    }
    return json;
}

bool Holds(const Json& found, const std::string& op, const Json& value) {
    const int nOrder = Order(found, value);
    if (op == "==") {
        return Equal(found, value);
    }
    if (op == "!=") {
        return !Equal(found, value);
    }
    if (op == "<") {
        return nOrder == -1;
    }
    if (op == "<=") {
        return nOrder == -1 || nOrder == 0;
    }
    if (op == ">") {
        return nOrder == 1;
    }
    if (op == ">=") {
        return nOrder == 1 || nOrder == 0;
    }
    if (op == "contains") {
        return Contains(found, value);
    }
    throw CScenarioError("OP is none of == != < <= > >= contains: " + op);
}

void Expect(CRunner& run, CArguments& args) {
    if (args.TakeWord("pixel")) {
        ExpectPixel(run, args);
        return;
    }
    const std::string path = args.Name("PATH");
    const std::string op = args.Name("OP");
    const Json value = TokenJson(args.Any("VALUE"));
    args.End();
    const Json found = Resolve(run, path);
    if (!Holds(found, op, value)) {
        throw CExpectationFailed("expected " + path + " " + op + " " + JsonText(value) + ", found " +
                                 JsonText(found));
    }
}
