// The commands of the scenario language.
#pragma once

#include <array>
#include <span>
#include <string>

#include "scenario/arguments.h"
#include "scenario/runner.h"

using CommandHandler = void (*)(CRunner&, CArguments&);

struct CommandRow {
    const char* pszName;
    const char* pszUsage;
    CommandHandler pfnRun;      ///< null for one whose subject does not exist yet
    bool bBeforeModule = false; ///< the line may stand before the module is loaded
};

/// The row of a command's name, or null.
const CommandRow* FindCommand(const std::string& name);
/// Composes the page alone at a scale and writes it as a PNG. False and one line of error when it cannot be
/// done.
bool RenderToFile(CStage& stage, const std::string& file, double dScale, std::string& error);
/// Writes the component file that the arguments name and describe. Throws CScenarioError when it cannot.
void WriteComponentTo(CArguments& args);
/// Each table holds the commands of one topic.
std::span<const CommandRow> HostCommands();
std::span<const CommandRow> StageCommands();
std::span<const CommandRow> ComponentCommands();
std::span<const CommandRow> PanelCommands();
std::span<const CommandRow> InputCommands();
std::span<const CommandRow> ToolCommands();
std::span<const CommandRow> SettingsCommands();
std::span<const CommandRow> TextCommands();
std::span<const CommandRow> EditorCommands();
std::span<const CommandRow> ExchangeCommands();
std::span<const CommandRow> LookCommands();
std::span<const CommandRow> LaterCommands();
