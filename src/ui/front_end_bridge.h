// The line from the core to the window: it fills the core's callbacks and makes signals of them, so
// that nothing else of the window knows that they are plain functions. There is one bridge at a
// time; when it goes, the core runs alone again.
#pragma once

#include <QObject>
#include <string>

#include "base/front_end.h"
#include "ui/event_pump.h"

namespace tessarel {

class FrontEndBridge : public QObject {
  Q_OBJECT
 public:
  explicit FrontEndBridge(QObject* parent = nullptr);
  ~FrontEndBridge() override;

  EventPump& Pump() { return pump_; }

  // All signals are answered before the core goes on. Those that ask leave the answer where they
  // are told to.
 Q_SIGNALS:
  void MessageAsked();  // in the call block of base/message.h
  void SettlingAsked(SettlePrompt& prompt);
  void SaveFileAsked(FileAction action, const std::string& offered, std::string& chosen);
  void BetDrawn(int place, int number);
  void TableDrawn();
  void StatusDrawn();
  void ViewsRefreshed();
  void SoundAsked(Sound sound);
  void SoundFileAsked(const std::string& path);
  void DiceThrown();
  void ScriptFailed(const std::string& text);

 private:
  EventPump pump_;
};

}  // namespace tessarel
