// Dice roll files: rolls as bytes, played back and recorded. One file is open at a time; it is read
// and written through a block of bytes, so a roll costs no system call. What is recorded reaches
// the disk when the block is full and when it is asked for.
#pragma once

#include <cstdint>
#include <fstream>
#include <functional>
#include <limits>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "base/file_io.h"
#include "dice/generators.h"

namespace tessarel {

// The values of RollFileMode.
enum RollFileUse : int32_t { RollFileOff = 0, RollFileRecord = 1, RollFilePlay = 2 };

// The most rolls of a file that are played or recorded: NextRoll has to be able to stand after the
// last one.
inline constexpr int32_t MaxRollsInFile = std::numeric_limits<int32_t>::max() - 1;

struct RollFileState {
  std::string RollFileName;  // full name of the open file; empty if none
  int32_t RollFileMode = RollFileOff;
  int32_t NextRoll = 1;     // number of the roll to be read or written next
  int32_t DisplayRoll = 1;  // what a list scrolls to
  int32_t LastRoll = 0;     // number of the roll last read or written
  int32_t RollCountInFile = 0;
  bool EndReached = false;  // the last playback step met the end of the file

  // The open file and the stretch of it that is held.
  std::fstream File;
  bool ReadOnly = false;
  std::vector<uint8_t> Block;
  int32_t BlockStart = 1;        // the number of the block's first roll
  bool BlockIsRecorded = false;  // the block holds recorded rolls that are not on the disk yet
};

extern RollFileState RollFile;

// A roll as a byte and back. A byte may hold faces of 0 or 7.
constexpr uint8_t RollByte(Faces faces) {
  return static_cast<uint8_t>(faces.die2 * 32 + faces.die1 * 4);
}
constexpr Faces FacesOfByte(uint8_t byte) {
  return {(byte & 28) / 4, (byte & 224) / 32};
}

// Closes the open file, then opens `name`, creating it when it does not exist, with the recorder
// off at roll 1. A relative name is taken from the program's folder. A file that may only be read
// opens for playback. File faults when it cannot be opened; no file is open then.
void OpenRollFile(const std::string& name);

// Writes out what is recorded and closes the file; the recorder is then off.
void CloseRollFile();

// Writes out what is recorded. This and the routines below close the file when the disk fails, and
// raise the file fault.
void FlushRollFile();

// Rewinds to roll 1 and plays back.
void RewindForPlayback();

// Whether PlayBackRoll would yield a roll now. Nothing is said and the recorder stays as it is.
bool PlaysNextRoll();

// Takes the next roll of the file. Empty at the end of the file and at an invalid byte; Table.Stop
// then says which, and an invalid byte has been reported (not under the Hyper-Drive) and has
// switched the recorder off.
std::optional<Faces> PlayBackRoll();

// Writes a roll at NextRoll, over what is there or at the end. Faces outside 1 to 6 are never
// written. Overflow fault after MaxRollsInFile and file fault when the file may only be read; the
// recorder is then off.
void RecordToRollFile(Faces faces);

// Up to `count` rolls from `first` (from 1) on, a byte each as they stand in the file; fewer at its
// end. The recorder and the positions stay. File fault when they cannot be read, with the file
// still open.
std::string ReadRolls(int64_t first, int32_t count);

// Puts the bytes that `insert` writes, a roll each, in the place of `removed` rolls from `at` on
// (1 to one past the end), and returns how many they are. The file is rewritten as a whole, so that
// whatever fails leaves it as it was; overflow fault when it would hold more than MaxRollsInFile.
// NextRoll and its kin stay as numbers: the caller moves them.
int32_t SpliceRolls(int32_t at,
                    int32_t removed,
                    const std::function<void(const ByteSink&)>& insert);

// The roll file test: no byte has bit 0 or 1 set. File faults when it cannot be read.
bool IsRollFile(const std::string& name);

}  // namespace tessarel
