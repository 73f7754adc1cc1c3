#include "scenario/runner.h"

#include <istream>
#include <new>
#include <ostream>

#include "desk/guid_text.h"
#include "scenario/commands.h"
#include "scenario/error.h"

namespace {

constexpr std::size_t LongestLine = std::size_t{1} << 20;

/// The next line; false at the end. A file without line ends is not gathered up endlessly.
bool ReadLine(std::istream& in, std::string& line) {
    line.clear();
    std::streambuf& buffer = *in.rdbuf();
    int c = buffer.sbumpc();
    if (c == std::char_traits<char>::eof()) {
        return false;
    }
    for (; c != std::char_traits<char>::eof() && c != '\n'; c = buffer.sbumpc()) {
        if (line.size() == LongestLine) {
            throw CScenarioError("the line is longer than a mebibyte");
        }
        line += static_cast<char>(c);
    }
    return true;
}

} // namespace

int CRunner::Run(std::istream& in, const std::string& file) {
    std::string line;
    for (int nLine = 1;; nLine++) {
        const auto where = [&] { return file + ":" + std::to_string(nLine) + ": "; };
        try {
            if (!ReadLine(in, line)) {
                return exit_status::Done;
            }
            RunLine(line);
        } catch (const CExpectationFailed& failure) {
            m_err << where() << failure.what() << '\n';
            return exit_status::Failed;
        } catch (const std::bad_alloc&) {
            m_err << where() << "not enough memory\n";
            return exit_status::Unusable;
        } catch (const std::exception& error) {
            m_err << where() << error.what() << '\n';
            return exit_status::Unusable;
        }
    }
}

void CRunner::RunLine(const std::string& line) {
    const LexedLine lexed = Lex(line);
    if (lexed.tokens.empty()) {
        return;
    }
    const std::string& name = lexed.tokens.front().text;
    const CommandRow* pRow = lexed.tokens.front().kind == TokenKind::Word ? FindCommand(name) : nullptr;
    if (!pRow) {
        throw CScenarioError("unknown command: " + name);
    }
    if (!pRow->pfnRun) {
        throw CNotBuilt(name);
    }
    m_command = lexed.command;
    if (!pRow->bBeforeModule) {
        LoadModuleFor(name);
    }
    CArguments args(lexed.tokens, pRow->pszUsage);
    pRow->pfnRun(*this, args);
    m_stage.Names().NameNewNodes();
}

// A module that was detached or refused to load is not tried again behind the person's back.
void CRunner::LoadModuleFor(const std::string& command) {
    const bool bFirst = !m_bLoadTried;
    m_bLoadTried = true;
    if (bFirst && command != "module" && !m_stage.LoadModule().loaded) {
        throw CScenarioError("the module cannot be loaded");
    }
}

void CRunner::Say(const std::string& result, std::vector<std::pair<std::string, std::string>> pairs) {
    m_last = {result, std::move(pairs)};
    m_out << m_command << " -> " << result;
    for (const auto& [name, value] : m_last.pairs) {
        m_out << ' ' << name << (name == "error" ? ' ' : '=') << value;
    }
    m_out << '\n';
}

void CRunner::SayWithError(long long nResult, int nError) {
    if (nError != 0) {
        Say(nResult, {{"error", std::to_string(nError)}});
    } else {
        Say(nResult);
    }
}

void CRunner::Print(const std::string& line) { m_out << line << '\n'; }

CImgNode* CRunner::Node(CArguments& args, const char* pszWhat) {
    const std::string name = args.Name(pszWhat);
    CImgNode* pNode = m_stage.Node(name);
    if (!pNode) {
        throw CScenarioError("no node is called " + name);
    }
    return pNode;
}

CImgNode* CRunner::NodeOrNone(CArguments& args, const char* pszWhat) {
    return args.TakeWord("none") ? nullptr : Node(args, pszWhat);
}

void CRunner::Nodes(CArguments& args, const char* pszWhat, CNodeRefList& nodes) {
    if (args.TakeWord("none")) {
        return;
    }
    for (const std::string& name : args.Names(pszWhat)) {
        CImgNode* pNode = m_stage.Node(name);
        if (!pNode) {
            throw CScenarioError("no node is called " + name);
        }
        nodes.AddTail(pNode);
    }
}

CListenerObject* CRunner::RequireTool() {
    if (!m_stage.CurrentTool()) {
        throw CScenarioError("no tool is current");
    }
    return m_stage.CurrentTool();
}

CListenerObject* CRunner::ToolNamed(CArguments& args) {
    const std::string name = args.Name("CLASS");
    CListenerObject* pTool = m_stage.Tool(name);
    if (!pTool) {
        throw CScenarioError("no tool of that class: " + name);
    }
    return pTool;
}

void CRunner::LacksInterface(const GUID& iid) {
    throw CScenarioError("the current tool lacks the interface " + GuidText(iid));
}

std::string RectText(const RECT& rect) {
    return "[" + std::to_string(rect.left) + "," + std::to_string(rect.top) + "," +
           std::to_string(rect.right) + "," + std::to_string(rect.bottom) + "]";
}
