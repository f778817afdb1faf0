#include "autobet/file_actions.h"

#include <filesystem>
#include <fstream>
#include <optional>
#include <string>
#include <system_error>

#include "autobet/function_call.h"
#include "base/fault.h"
#include "base/file_io.h"
#include "base/folders.h"
#include "base/front_end.h"
#include "base/single_byte_text.h"
#include "dice/probability.h"
#include "dice/probability_file.h"
#include "dice/roll_file.h"
#include "state/scripts.h"
#include "state/settings.h"

namespace tessarel {

namespace {

std::string TrimmedText(const ScriptCommand& command, size_t k) {
  if (k >= command.arguments.size()) return {};
  return std::string(TrimSpaces(TextOf(command.arguments[k])));
}

bool IsFromRoll(const ScriptValue& value) {
  return IsText(value) && static_cast<int32_t>(value.value) == FromRollString;
}

// What stands in a statement that plays back: [name] ["from roll" number].
struct PlaybackRequest {
  std::string Name;
  std::optional<double> FromRoll;
};

std::optional<PlaybackRequest> ReadPlaybackRequest(const ScriptCommand& command) {
  PlaybackRequest request;
  const auto& arguments = command.arguments;
  size_t k = 0;
  if (k < arguments.size() && !IsFromRoll(arguments[k])) request.Name = TrimmedText(command, k++);
  if (k < arguments.size() && IsFromRoll(arguments[k])) {
    if (++k == arguments.size()) {
      FailScript(ScriptFault::NoValue);
      return std::nullopt;
    }
    request.FromRoll = NumberOf(arguments[k]);
  }
  return request;
}

// Everything is tested before the file that is open now is given up.
bool OpenForPlayback(const std::string& name) {
  try {
    FlushRollFile();
    if (!FileExists(InFolder(Folders.AppFolder, name))) {
      FailScript(ScriptFault::FileNotOpened);
    } else if (!IsRollFile(name)) {
      FailScript(ScriptFault::NotARollFile);
    } else {
      OpenRollFile(name);
      RewindForPlayback();
      return true;
    }
  } catch (const Fault&) {
    FailScript(ScriptFault::FileNotOpened);
  }
  return false;
}

void MoveToRoll(double roll) {
  const double behindLast = RollFile.RollCountInFile + 1.0;
  const int32_t next = !(roll >= 1)        ? 1
                       : roll > behindLast ? RollFile.RollCountInFile + 1
                                           : WholeOf(roll);
  RollFile.NextRoll = RollFile.DisplayRoll = next;
}

// Opening would show a box about a file that is none.
bool IsProbabilityFile(const std::string& name) {
  constexpr size_t LargestFile = 1 << 20;
  const std::string path = InFolder(Folders.AppFolder, name);
  return FileExists(path) && MatrixOfBytes(ReadWholeFile(path, LargestFile)).has_value();
}

bool LoadProbabilities(const std::string& name) {
  try {
    return IsProbabilityFile(name) && OpenProbabilityFile(name);
  } catch (const Fault&) {
    return false;
  }
}

std::string& OutputFileOfScript() {
  return Scripts.Places[AutoBet.CurrentScriptPlayer].OutputFile;
}

// Opens the output file, writes the bytes and closes it again. False when any of it fails; a null
// byte would cut the name to that of another file, and a pipe would hold up the table.
bool AddToOutputFile(std::ios::openmode mode, const std::string& bytes) {
  const std::string& name = OutputFileOfScript();
  const std::string path = InFolder(Folders.AppFolder, name);
  std::error_code fault;
  const bool other = std::filesystem::exists(path, fault) && !FileExists(path);
  if (name.empty() || name.find('\0') != std::string::npos || other) return false;
  std::ofstream file(path, std::ios::binary | mode);
  file << bytes;
  file.close();
  return !file.fail();
}

}  // namespace

bool HasRight(const PerPlace<bool>& right, ScriptFault fault) {
  if (At(right, AutoBet.CurrentScriptPlayer)) return true;
  FailScript(fault);
  return false;
}

void PlayBackRollFile(const ScriptCommand& command) {
  if (!HasRight(Scripts.AllowActProb, ScriptFault::NoRollFiles)) return;
  const auto request = ReadPlaybackRequest(command);
  if (!request) return;
  if (!request->Name.empty() && !OpenForPlayback(request->Name)) return;
  if (RollFile.RollFileName.empty()) return FailScript(ScriptFault::RollFileNotOpen);
  RollFile.RollFileMode = RollFilePlay;
  RollFile.EndReached = false;
  if (request->FromRoll) MoveToRoll(*request->FromRoll);
}

void SwitchOffRollFile(const ScriptCommand&) {
  if (!HasRight(Scripts.AllowActProb, ScriptFault::NoRollFiles)) return;
  if (RollFile.RollFileName.empty()) return FailScript(ScriptFault::RollFileNotOpen);
  RollFile.RollFileMode = RollFileOff;
}

void ActivateProbabilities(const ScriptCommand& command) {
  if (!HasRight(Scripts.AllowActProb, ScriptFault::NoProbabilityFiles)) return;
  const std::string name = TrimmedText(command, 0);
  if (!name.empty() && !LoadProbabilities(name))
    return FailScript(ScriptFault::NotAProbabilityFile);
  Probability.ProbabilityMatrixActive = true;
}

void SwitchOffProbabilities(const ScriptCommand&) {
  if (!HasRight(Scripts.AllowActProb, ScriptFault::NoProbabilityFiles)) return;
  Probability.ProbabilityMatrixActive = false;
}

void PlayScriptSound(const ScriptCommand& command) {
  if (Settings.DisableAutoBetSounds || Settings.DisableAllSound)
    return FailScript(ScriptFault::SoundsOff);
  const std::string name = TrimmedText(command, 0);
  if (name.empty()) return FailScript(ScriptFault::NoString);
  if (!Table.HyperDriveOn) FrontEnd.PlaySoundFile(InFolder(Folders.AppFolder, name));
}

void OpenOutputFile(const ScriptCommand& command) {
  OutputFileOfScript() = TrimmedText(command, 0);
  const auto mode = command.action == action::ClearOutput ? std::ios::trunc : std::ios::app;
  if (!AddToOutputFile(mode, {})) FailScript(ScriptFault::BadFileName);
}

void WriteToOutputFile(const ScriptCommand& command) {
  if (command.arguments.empty()) return FailScript(ScriptFault::NoValue);
  if (OutputFileOfScript().empty()) return FailScript(ScriptFault::OutputFileNotOpen);
  const std::string line = ToSingleByte(TextOf(command.arguments[0])) + "\n";
  if (!AddToOutputFile(std::ios::app, line)) FailScript(ScriptFault::BadFileName);
}

}  // namespace tessarel
