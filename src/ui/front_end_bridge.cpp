#include "ui/front_end_bridge.h"

namespace tessarel {

namespace {

// How long a status text has to stay readable.
constexpr int StatusMs = 300;

// The bridge that plain functions speak through.
FrontEndBridge* Bridge = nullptr;

}  // namespace

FrontEndBridge::FrontEndBridge(QObject* parent) : QObject(parent) {
  Q_ASSERT(Bridge == nullptr);
  Bridge = this;
  FrontEnd.ShowMessage = [] { Q_EMIT Bridge->MessageAsked(); };
  FrontEnd.SettleBet = [](SettlePrompt& prompt) { Q_EMIT Bridge->SettlingAsked(prompt); };
  FrontEnd.RunPendingEvents = [] { Bridge->pump_.Run(); };
  FrontEnd.DrawBet = [](int place, int number) { Q_EMIT Bridge->BetDrawn(place, number); };
  FrontEnd.DrawTable = [] { Q_EMIT Bridge->TableDrawn(); };
  FrontEnd.DrawStatus = [] { Q_EMIT Bridge->StatusDrawn(); };
  FrontEnd.RefreshViews = [] { Q_EMIT Bridge->ViewsRefreshed(); };
  FrontEnd.PlaySound = [](Sound sound) { Q_EMIT Bridge->SoundAsked(sound); };
  FrontEnd.AnimateDice = [] { Q_EMIT Bridge->DiceThrown(); };
  FrontEnd.PlaySoundFile = [](const std::string& path) { Q_EMIT Bridge->SoundFileAsked(path); };
  FrontEnd.ReportScriptError = [](int, int, const std::string& text) {
    Q_EMIT Bridge->ScriptFailed(text);
  };
  FrontEnd.AskSaveFile = [](FileAction action, const std::string& offered) {
    std::string chosen;
    Q_EMIT Bridge->SaveFileAsked(action, offered, chosen);
    return chosen;
  };
  FrontEnd.StatusMilliseconds = StatusMs;
}

FrontEndBridge::~FrontEndBridge() {
  FrontEnd = FrontEndCallbacks{};
  Bridge = nullptr;
}

}  // namespace tessarel
