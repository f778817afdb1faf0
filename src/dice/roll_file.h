// Dice roll files: rolls as bytes, played back and recorded. One file is open at a time; during
// unattended play it is read and written through a buffer, so a roll costs no system call.
#pragma once

#include <cstdint>
#include <optional>
#include <string>

#include "dice/generators.h"

namespace tessarel {

// The values of RollFileMode.
enum RollFileUse : int32_t { RollFileOff = 0, RollFileRecord = 1, RollFilePlay = 2 };

struct RollFileState {
  std::string RollFileName;  // full name of the open file; empty if none
  int32_t RollFileMode = RollFileOff;
  int32_t NextRoll = 1;     // number of the roll to be read or written next
  int32_t DisplayRoll = 1;  // what a list scrolls to
  int32_t LastRoll = 0;     // number of the roll last read or written
  int32_t RollCountInFile = 0;
  bool EndReached = false;  // the last playback step met the end of the file
};

extern RollFileState RollFile;

// A roll as a byte and back. A byte may hold faces of 0 or 7.
constexpr uint8_t RollByte(Faces faces) {
  return static_cast<uint8_t>(faces.die2 * 32 + faces.die1 * 4);
}
constexpr Faces FacesOfByte(uint8_t byte) {
  return {(byte & 28) / 4, (byte & 224) / 32};
}

// Opens `name`, creating it when it does not exist, with the recorder off at roll 1. A relative
// name is taken from the program's folder. File faults when it cannot be opened.
void OpenRollFile(const std::string& name);

// Writes out what is recorded and closes the file; the recorder is then off.
void CloseRollFile();

// Writes out what is recorded.
void FlushRollFile();

// Rewinds to roll 1 and plays back.
void RewindForPlayback();

// Takes the next roll of the file. Empty at the end of the file and at an invalid byte; StopReason
// then says which, an unattended run has been told to stop, and an invalid byte has been reported
// and has switched the recorder off.
std::optional<Faces> PlayBackRoll();

// Writes a roll at NextRoll, over what is there or at the end.
void RecordToRollFile(Faces faces);

// The roll file test: no byte has bit 0 or 1 set.
bool IsRollFile(const std::string& name);

}  // namespace tessarel
