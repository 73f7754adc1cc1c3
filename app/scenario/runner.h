// Carries out a scenario, line by line.
#pragma once

#include <iosfwd>
#include <string>
#include <utility>
#include <vector>

#include <nlohmann/json.hpp>

#include "scenario/arguments.h"
#include "stage.h"

/// How the program ends.
namespace exit_status {
inline constexpr int Done = 0;
inline constexpr int Failed = 1;   ///< an expectation does not hold
inline constexpr int Unusable = 2; ///< a line, a file or the command line cannot be carried out
} // namespace exit_status

/// What a command answered: the result and the named values behind it, already in text.
struct Answer {
    std::string result;
    std::vector<std::pair<std::string, std::string>> pairs;
};

/// One run of a scenario on a stage of its own. Answers and dumps go to `out`, the one error line to `err`.
class CRunner {
  public:
    CRunner(std::ostream& out, std::ostream& err) : m_out(out), m_err(err) {}

    /// Runs the lines of `in`, called `file` in an error. Answers the exit status.
    int Run(std::istream& in, const std::string& file);
    /// Carries out one line. Throws CScenarioError or CExpectationFailed.
    void RunLine(const std::string& line);

    CStage& Stage() { return m_stage; }

    /// Prints `LINE -> RESULT name=value ...`; ` error N` stands behind the result when N is not 0.
    void Say(const std::string& result, std::vector<std::pair<std::string, std::string>> pairs = {});
    void Say(long long nResult, std::vector<std::pair<std::string, std::string>> pairs = {}) {
        Say(std::to_string(nResult), std::move(pairs));
    }
    void SayWithError(long long nResult, int nError);
    void Print(const std::string& line);
    const Answer& Last() const { return m_last; }

    /// The live node of a name; none for `none`. Throws for a name that is nobody's.
    CImgNode* NodeOrNone(CArguments& args, const char* pszWhat);
    CImgNode* Node(CArguments& args, const char* pszWhat);
    void Nodes(CArguments& args, const char* pszWhat, CNodeRefList& nodes);
    /// An interface of the current tool; throws when no tool is current or it lacks the interface.
    template <class Interface>
    Interface& ToolInterface() {
        RequireTool();
        Interface* pInterface = m_stage.ToolInterface<Interface>();
        if (!pInterface) {
            LacksInterface(Interface::Id);
        }
        return *pInterface;
    }
    CListenerObject* RequireTool();
    /// A received tool by the class name that comes next.
    CListenerObject* ToolNamed(CArguments& args);

  private:
    void LoadModuleFor(const std::string& command);
    [[noreturn]] void LacksInterface(const GUID& iid);

    std::ostream& m_out;
    std::ostream& m_err;
    CStage m_stage;
    std::string m_command; ///< the line being carried out, as it is printed
    Answer m_last;
    bool m_bLoadTried = false;
};

/// "[l,t,r,b]".
std::string RectText(const RECT& rect);
