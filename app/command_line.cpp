#include "command_line.h"

#include <filesystem>
#include <fstream>
#include <istream>
#include <ostream>
#include <sstream>
#include <string>
#include <vector>

#include <CLI/CLI.hpp>

#include "scenario/commands.h"
#include "scenario/error.h"
#include "scenario/runner.h"

namespace {

constexpr char Version[] = "0.1.0";

struct Request {
    std::string scenario;
    std::string picture;
    double scale = 1.0;
};

/// Opens the scenario, `-` being standard input. Null, and one line of error, when it cannot be read.
std::istream* OpenScenario(const std::string& name, std::istream& in, std::ifstream& file,
                           std::ostream& err) {
    if (name == "-") {
        return &in;
    }
    file.open(name, std::ios::binary);
    if (!file || std::filesystem::is_directory(name)) {
        err << "pradix: " << name << ": cannot be read\n";
        return nullptr;
    }
    return &file;
}

int RunScenario(const Request& request, std::istream& in, std::ostream& out, std::ostream& err) {
    std::ifstream file;
    std::istream* pIn = OpenScenario(request.scenario, in, file, err);
    return pIn ? CRunner(out, err).Run(*pIn, request.scenario) : exit_status::Unusable;
}

/// The scenario's own answers are of no use to one who wants the picture.
int RenderScenario(const Request& request, std::istream& in, std::ostream& err) {
    std::ifstream file;
    std::istream* pIn = OpenScenario(request.scenario, in, file, err);
    if (!pIn) {
        return exit_status::Unusable;
    }
    std::ostringstream unread;
    CRunner run(unread, err);
    const int nStatus = run.Run(*pIn, request.scenario);
    if (nStatus != exit_status::Done) {
        return nStatus;
    }
    std::string error;
    if (!RenderToFile(run.Stage(), request.picture, request.scale, error)) {
        err << "pradix: " << error << '\n';
        return exit_status::Unusable;
    }
    return exit_status::Done;
}

/// The subcommand takes a scenario command's arguments, its own name being that of the command.
int MakeComponent(const std::vector<std::string>& words, std::ostream& err) {
    std::vector<Token> tokens = {LexArgument("component")};
    for (const std::string& word : words) {
        tokens.push_back(LexArgument(word));
    }
    try {
        CArguments args(tokens, FindCommand("component")->pszUsage);
        WriteComponentTo(args);
    } catch (const CScenarioError& error) {
        err << "pradix: " << error.what() << '\n';
        return exit_status::Unusable;
    }
    return exit_status::Done;
}

/// Whether all that was said has got out; a full disk may show only now.
bool IsWritten(std::ostream& out, std::ostream& err) {
    if (!out.flush()) {
        err << "pradix: the output cannot be written\n";
    }
    return out && err.flush();
}

int CarryOut(int argc, const char* const* argv, std::istream& in, std::ostream& out, std::ostream& err) {
    CLI::App app("The headless host of the Pradix canvas tools.", "pradix");
    app.set_version_flag("--version", Version);
    app.require_subcommand(1);

    Request request;
    CLI::App* pRun = app.add_subcommand("run", "Carries out a scenario line by line.");
    pRun->add_option("FILE", request.scenario, "The scenario, or - for standard input.")->required();
    CLI::App* pRender = app.add_subcommand("render", "Carries out a scenario and draws its page alone.");
    pRender->add_option("FILE.scn", request.scenario, "The scenario, or - for standard input.")->required();
    pRender->add_option("OUT.png", request.picture, "The picture to write.")->required();
    pRender->add_option("--scale", request.scale, "Pixels per document unit.");
    CLI::App* pComponent = app.add_subcommand("component", "Writes a component file, as the command of a "
                                                           "scenario does: FILE NAME X Y W H FILL...");
    pComponent->prefix_command(); // Everything behind is left as it is, numbers below 0 too.

    try {
        app.parse(argc, argv);
    } catch (const CLI::ParseError& error) {
        const bool bAsked = error.get_exit_code() == static_cast<int>(CLI::ExitCodes::Success);
        app.exit(error, out, err);
        return bAsked ? exit_status::Done : exit_status::Unusable;
    }
    if (pComponent->parsed()) {
        return MakeComponent(pComponent->remaining(), err);
    }
    return pRun->parsed() ? RunScenario(request, in, out, err) : RenderScenario(request, in, err);
}

} // namespace

int RunProgram(int argc, const char* const* argv, std::istream& in, std::ostream& out, std::ostream& err) {
    const int nStatus = CarryOut(argc, argv, in, out, err);
    return IsWritten(out, err) ? nStatus : exit_status::Unusable;
}
