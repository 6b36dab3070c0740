// The commands of the menu.
#include <string>

#include "game/identity.h"
#include "shell/frmMain.h"
#include "shell/menu_entries.h"

namespace thistle {

void frmMain::MenuClick(std::string_view name) {
  if (name == menu::kNewGame) mnuNewGame_Click();
  if (name == menu::kExit) mnuExit_Click();
  if (name == menu::kOptions) mnuOptions_Click();
  if (name == menu::kInstructions) mnuInstr_Click();
  if (name == menu::kSupport) Support_Click();
  if (name == menu::kAbout) mnuAbout_Click();
}

void frmMain::mnuNewGame_Click() {
  if (module1.MoneyValue[kDenominations] != 0 && !module1.Ask("Are you sure you want to start again ?")) return;
  if (Game.Loaded)
    Game.NewGame();
  else
    Open(Game);
}

void frmMain::mnuExit_Click() {
  const std::string question = "Are you sure you want to leave " + std::string(identity::kTitle) + "  ?";
  if (module1.MoneyValue[kDenominations] != 0 && !module1.Ask(question)) return;
  MDIForm_Unload();
}

void frmMain::mnuOptions_Click() { Open(Options); }

void frmMain::mnuInstr_Click() { Open(Help); }

void frmMain::Support_Click() { Open(Support); }

void frmMain::mnuAbout_Click() { Open(About); }

}  // namespace thistle
