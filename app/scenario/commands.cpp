#include "scenario/commands.h"

const CommandRow* FindCommand(const std::string& name) {
    for (const auto& table : {HostCommands(), StageCommands(), ComponentCommands(), PanelCommands(),
                              InputCommands(), ToolCommands(), SettingsCommands(), TextCommands(),
                              EditorCommands(), ExchangeCommands(), LookCommands(), LaterCommands()}) {
        for (const CommandRow& row : table) {
            if (name == row.pszName) {
                return &row;
            }
        }
    }
    return nullptr;
}
