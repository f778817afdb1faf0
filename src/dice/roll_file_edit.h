// Editing the open dice roll file: rolls entered by hand, the recorder, the private clipboard,
// other files of rolls and texts to paste from and to copy to, and what becomes of the file when
// play ends. A window calls these; they say what has to be said, and report what fails.
//
// What changes the file first stops an unattended run, and does nothing else then; it does nothing
// during a roll, and asks for a file when none is open. The file is rewritten as a whole, so that
// it is the old or the new one whatever fails. Each routine returns whether it did its work.
#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "dice/roll_file.h"

namespace tessarel {

inline constexpr std::string_view DefaultRollFormat = "Roll# (Die1.Die2) Total";
inline constexpr int RollButtonCount = 36;

struct RollFileEditState {
  int32_t optInsertRolls = 0;  // 0: rolls entered by hand come before NextRoll; 1: they replace it
  std::string txtDiceRollOutputFormat{DefaultRollFormat};
  bool ClipboardInUse = false;  // this run has put rolls there
};

extern RollFileEditState RollFileEdit;

// The first and the last roll of a selection, in either order and anywhere.
struct RollRange {
  int32_t first, last;
};

// The faces of button 0 to 35: (1,1), (1,2) to (6,6).
constexpr Faces FacesOfButton(int32_t button) {
  return {button / 6 + 1, button % 6 + 1};
}
bool EnterRoll(int32_t button);
// Draws the faces from the machine's own source.
bool EnterRandomRoll();

// Sets the recorder to a RollFileUse.
bool SetRecorder(int32_t use);

// The clipboard "rollcopyfile.rll" in the program's folder. What is pasted comes before NextRoll,
// which then stands after it.
bool CopyRolls(RollRange selection);
bool CutRolls(RollRange selection);
bool DeleteRolls(RollRange selection);
bool PasteRolls();
// Deletes the clipboard's file.
void DeleteRollClipboard();

// Whether `name` is the open file, onto which nothing can be copied, neither rolls nor, `asText`,
// their text; that is said.
bool RefusesOpenRollFile(const std::string& name, bool asText);

bool CopyRollsToFile(RollRange selection, const std::string& name);
// Pastes a dice roll file; one that is none is refused.
bool PasteRollFile(const std::string& name);
// Pastes the digits from 1 to 6 of any file, two a roll; the rest of it is skipped.
bool PasteTextFile(const std::string& name);

// The format in force; an empty one is put back to the default.
const std::string& RollOutputFormat();
// The text of a roll in a format: "roll#", "die1", "die2" and "total" in any case give its figures,
// all else stands, in lower case, and a blank ends it.
std::string RollText(std::string_view format, int32_t number, Faces faces);

// A line a roll, in the format in force.
bool CopyRollsToTextFile(RollRange selection, const std::string& name);

// The rolls to print, the whole file or the selection as the user decides; empty when there are
// none or the format shows nothing of them, which has been said.
std::optional<RollRange> AskRollsToPrint(RollRange selection);
// The heading, the file's name, the date and the rolls.
std::vector<std::string> RollPrintRows(RollRange rolls);

// The end of play: asks whether to close the pop-up roll file, and whether to rewind the file that
// is in use for playback; a No switches the recorder off.
void StopRollFile();

}  // namespace tessarel
