#include "dice/roll_file_edit.h"

#include <algorithm>
#include <array>
#include <cstdio>
#include <utility>

#include "base/clock.h"
#include "base/file_io.h"
#include "base/folders.h"
#include "base/front_end.h"
#include "base/message.h"
#include "base/single_byte_text.h"
#include "base/trap.h"
#include "dice/popup_roll.h"
#include "engine/unattended.h"
#include "log/event_lines.h"
#include "state/table.h"
#include "texts/say.h"

namespace tessarel {

RollFileEditState RollFileEdit;

namespace {

constexpr std::string_view ClipboardName = "rollcopyfile.rll";
constexpr std::string_view ScratchName = "cnvrtasc.xx~";
constexpr int32_t BlockLength = 30'000;

int32_t Show(Text text, Text title, int32_t flags) {
  return ShowMessage(SayChosen(text), SayChosen(title), flags);
}

// --- What may be done ---------------------------------------------------------------------------

bool FileIsOpen() {
  if (RollFile.File.is_open()) return true;
  Show(Text::OpenRollFileFirst, Text::RecordRollsTitle, msg::OkAlert);
  return false;
}

bool TableIsAtRest() {
  if (RunIsOn()) {
    StopUnattended();
    return false;
  }
  return !Table.RollInProgress;
}

bool MayEdit() {
  return TableIsAtRest() && FileIsOpen();
}

// Runs an edit that returns whether it did its work, and has the window drawn again.
template <class Edit>
bool Edited(std::string_view place, Edit&& edit) {
  bool done = false;
  Trapped(place, [&] { done = edit(); });
  FrontEnd.RefreshViews();
  return done;
}

// In order and within the file; first is after last when the file has no rolls.
RollRange Within(RollRange range) {
  const int32_t count = RollFile.RollCountInFile;
  if (range.first > range.last) std::swap(range.first, range.last);
  if (count == 0) return {1, 0};
  return {std::clamp(range.first, 1, count), std::clamp(range.last, 1, count)};
}

bool IsEmpty(RollRange range) {
  return range.first > range.last;
}

int32_t CountOf(RollRange range) {
  return range.last - range.first + 1;
}

std::string InProgramFolder(std::string_view name) {
  return InFolder(Folders.AppFolder, name);
}

// --- Moving rolls -------------------------------------------------------------------------------

// Calls visit(number, bytes) for each block of the range.
template <class Visit>
void ForEachBlock(RollRange range, Visit&& visit) {
  while (!IsEmpty(range)) {
    const std::string rolls = ReadRolls(range.first, std::min(BlockLength, CountOf(range)));
    if (rolls.empty()) return;
    visit(range.first, std::string_view(rolls));
    range.first += static_cast<int32_t>(rolls.size());
  }
}

void WriteRolls(RollRange range, const std::string& path) {
  WriteFileAtomically(path, [range](const ByteSink& sink) {
    ForEachBlock(range, [&sink](int32_t, std::string_view rolls) { sink(rolls); });
  });
}

// Puts rolls before NextRoll and moves it after them.
void InsertRolls(const std::function<void(const ByteSink&)>& rolls) {
  RollFile.NextRoll = std::clamp(RollFile.NextRoll, 1, RollFile.RollCountInFile + 1);
  const int32_t count = SpliceRolls(RollFile.NextRoll, 0, rolls);
  if (count == 0) return;
  RollFile.DisplayRoll = RollFile.NextRoll += count;
  RollFile.LastRoll = RollFile.NextRoll - 1;
}

// Where a roll stands after the range is gone; one of the range itself gives way to `instead`.
int32_t MovedUp(int32_t roll, RollRange gone, int32_t instead) {
  if (roll < gone.first) return roll;
  return roll > gone.last ? roll - CountOf(gone) : instead;
}

void RemoveRolls(RollRange range) {
  SpliceRolls(range.first, CountOf(range), [](const ByteSink&) {});
  RollFile.NextRoll = MovedUp(RollFile.NextRoll, range, range.first);
  RollFile.DisplayRoll = MovedUp(RollFile.DisplayRoll, range, range.first);
  RollFile.LastRoll = MovedUp(RollFile.LastRoll, range, range.first - 1);
}

bool PutOnClipboard(RollRange range) {
  if (IsEmpty(range)) return false;
  WriteRolls(range, InProgramFolder(ClipboardName));
  return RollFileEdit.ClipboardInUse = true;
}

bool PasteFrom(const std::string& path) {
  FlushRollFile();  // the open file may be pasted into itself
  if (!IsRollFile(path)) {
    ShowError(Say(Text::NotARollFile, path));
    return false;
  }
  InsertRolls([&path](const ByteSink& sink) {
    ReadFileInBlocks(path, [&sink](std::string_view rolls) {
      sink(rolls);
      return true;
    });
  });
  return true;
}

bool EnterFaces(Faces faces) {
  if (!MayEdit()) return false;
  return Edited("EnterRoll", [faces] {
    if (RollFileEdit.optInsertRolls == 0 && RollFile.NextRoll <= RollFile.RollCountInFile) {
      const auto roll = static_cast<char>(RollByte(faces));
      InsertRolls([&roll](const ByteSink& sink) { sink({&roll, 1}); });
    } else {
      RecordToRollFile(faces);
      FlushRollFile();
    }
    return true;
  });
}

// --- Texts --------------------------------------------------------------------------------------

// The scratch file of an import, gone when the import ends in whatever way.
struct ScratchFile {
  const std::string Path = InProgramFolder(ScratchName);

  ScratchFile() = default;
  ~ScratchFile() { std::remove(Path.c_str()); }
  ScratchFile(const ScratchFile&) = delete;
  ScratchFile& operator=(const ScratchFile&) = delete;
};

// Writes the rolls that the digits of a text make; a last lone die is dropped.
void ConvertText(const std::string& path, const ByteSink& sink) {
  int32_t first = 0;
  ReadFileInBlocks(path, [&](std::string_view text) {
    std::string rolls;
    for (const char c : text) {
      if (c < '1' || c > '6') continue;
      const int32_t die = c - '0';
      if (first != 0) rolls += static_cast<char>(RollByte({first, die}));
      first = first != 0 ? 0 : die;
    }
    sink(rolls);
    return true;
  });
}

enum class RollFigure { Number, Die1, Die2, Total };

struct FormatWord {
  std::string_view text;
  RollFigure figure;
};

constexpr std::array<FormatWord, 4> FormatWords = {{{"roll#", RollFigure::Number},
                                                    {"die1", RollFigure::Die1},
                                                    {"die2", RollFigure::Die2},
                                                    {"total", RollFigure::Total}}};

int32_t FigureOf(RollFigure figure, int32_t number, Faces faces) {
  switch (figure) {
    case RollFigure::Number:
      return number;
    case RollFigure::Die1:
      return faces.die1;
    case RollFigure::Die2:
      return faces.die2;
    default:
      return faces.die1 + faces.die2;
  }
}

// The form of a format in which lines are built from it.
std::string PreparedFormat(std::string_view format) {
  return LowerCase(TrimSpaces(format)) + " ";
}

void AppendRoll(std::string& text, std::string_view prepared, int32_t number, Faces faces) {
  while (!prepared.empty()) {
    const auto word = std::find_if(FormatWords.begin(), FormatWords.end(), [&](const auto& each) {
      return prepared.starts_with(each.text);
    });
    if (word == FormatWords.end()) {
      text += prepared.front();
      prepared.remove_prefix(1);
    } else {
      text += std::to_string(FigureOf(word->figure, number, faces));
      prepared.remove_prefix(word->text.size());
    }
  }
}

bool FormatShowsRolls(CheckedText<0> title) {
  const std::string format = PreparedFormat(RollOutputFormat());
  const bool shows = std::any_of(FormatWords.begin(), FormatWords.end(), [&](const auto& word) {
    return format.find(word.text) != std::string::npos;
  });
  if (!shows) Show(Text::EmptyFormat, title, msg::OkAlert);
  return shows;
}

// Calls visit(line) for each roll of the range in the format in force, counting from `number`.
template <class Visit>
void ForEachLine(RollRange range, int32_t number, Visit&& visit) {
  const std::string format = PreparedFormat(RollOutputFormat());
  std::string line;
  ForEachBlock(range, [&](int32_t, std::string_view rolls) {
    for (const char roll : rolls) {
      line.clear();
      AppendRoll(line, format, number++, FacesOfByte(static_cast<uint8_t>(roll)));
      visit(line);
    }
  });
}

// The number of the first line: the roll's own, or 1 if the user wants that.
int32_t AskFirstNumber(RollRange range) {
  const bool numbered = LowerCase(RollOutputFormat()).find("roll#") != std::string::npos;
  if (range.first == 1 || !numbered) return range.first;
  const bool renumber =
      Show(Text::AskToRenumber, Text::CopyRollsAsTextTitle, msg::AskYesNo) == AnswerYes;
  return renumber ? 1 : range.first;
}

void WriteText(RollRange range, int32_t number, const std::string& path) {
  WriteFileAtomically(path, [=](const ByteSink& sink) {
    std::string text;
    ForEachLine(range, number, [&](const std::string& line) {
      text += ToSingleByte(line) + "\r\n";
      if (std::ssize(text) < BlockLength) return;
      sink(text);
      text.clear();
    });
    sink(text);
  });
}

// --- The recorder -------------------------------------------------------------------------------

bool MayPlay() {
  if (PopupRoll.PopupRollActive) {
    if (Show(Text::PlaybackClosesPopup, Text::PopupRollsTitle, msg::AskYesNo) != AnswerYes)
      return false;
    ClosePopupRoll();
  }
  if (RollFile.RollCountInFile > 0) return true;
  Show(Text::NoRollsToPlay, Text::PopupRollsTitle, msg::OkAlert);
  return false;
}

void EnterRecorderState(int32_t use) {
  FlushRollFile();
  if (use == RollFileRecord && RollFile.ReadOnly) {
    throw Fault(FaultNumber::FileAccess, Say(Text::NoRollsRecordedTo, RollFile.RollFileName));
  }
  const int32_t before = std::exchange(RollFile.RollFileMode, use);
  RollFile.EndReached = false;
  if (use == RollFilePlay && before != RollFilePlay) LogPlayback(RollFile.RollFileName);
}

void AskToRewind(CheckedText<0> question) {
  const bool rewind = Show(question, Text::RollFileTitle, msg::AskYesNo) == AnswerYes;
  if (rewind) {
    RewindForPlayback();
  } else {
    FlushRollFile();
    RollFile.RollFileMode = RollFileOff;
  }
}

}  // namespace

bool EnterRoll(int32_t button) {
  return button >= 0 && button < RollButtonCount && EnterFaces(FacesOfButton(button));
}

bool EnterRandomRoll() {
  const int32_t die1 = PlatformRandom(6) + 1;
  return EnterFaces({die1, PlatformRandom(6) + 1});
}

bool SetRecorder(int32_t use) {
  if (use < RollFileOff || use > RollFilePlay || !TableIsAtRest()) return false;
  if (use > RollFileOff && !FileIsOpen()) return false;
  if (use == RollFilePlay && !MayPlay()) return false;
  return Edited("SetRecorder", [use] {
    EnterRecorderState(use);
    return true;
  });
}

bool CopyRolls(RollRange selection) {
  if (!FileIsOpen()) return false;
  return Edited("CopyRolls", [=] { return PutOnClipboard(Within(selection)); });
}

bool CutRolls(RollRange selection) {
  if (!MayEdit()) return false;
  return Edited("CutRolls", [=] {
    const RollRange range = Within(selection);
    if (!PutOnClipboard(range)) return false;
    RemoveRolls(range);
    return true;
  });
}

bool DeleteRolls(RollRange selection) {
  if (!MayEdit()) return false;
  return Edited("DeleteRolls", [=] {
    const RollRange range = Within(selection);
    if (IsEmpty(range)) return false;
    RemoveRolls(range);
    return true;
  });
}

bool PasteRolls() {
  if (!MayEdit()) return false;
  const std::string path = InProgramFolder(ClipboardName);
  return FileExists(path) && Edited("PasteRolls", [&path] { return PasteFrom(path); });
}

void DeleteRollClipboard() {
  DeleteFileIfPresent(InProgramFolder(ClipboardName));
  RollFileEdit.ClipboardInUse = false;
}

bool RefusesOpenRollFile(const std::string& name, bool asText) {
  if (!RollFile.File.is_open() || !IsSameFile(InProgramFolder(name), RollFile.RollFileName))
    return false;
  Show(asText ? Text::RollTextTargetIsOpen : Text::RollTargetIsOpen,
       asText ? Text::CopyRollsAsTextTitle : Text::CopyRollsTitle, msg::OkAlert);
  return true;
}

bool CopyRollsToFile(RollRange selection, const std::string& name) {
  if (!FileIsOpen() || RefusesOpenRollFile(name, false)) return false;
  const std::string path = InProgramFolder(name);
  return Trapped("CopyRollsToFile", [&] { WriteRolls(Within(selection), path); });
}

bool PasteRollFile(const std::string& name) {
  if (!MayEdit()) return false;
  return Edited("PasteRollFile", [&name] { return PasteFrom(InProgramFolder(name)); });
}

bool PasteTextFile(const std::string& name) {
  if (!MayEdit()) return false;
  return Edited("PasteTextFile", [&name] {
    const ScratchFile scratch;
    const std::string text = InProgramFolder(name);
    WriteFileAtomically(scratch.Path, [&](const ByteSink& sink) { ConvertText(text, sink); });
    return PasteFrom(scratch.Path);
  });
}

const std::string& RollOutputFormat() {
  std::string& format = RollFileEdit.txtDiceRollOutputFormat;
  if (TrimSpaces(format).empty()) format = DefaultRollFormat;
  return format;
}

std::string RollText(std::string_view format, int32_t number, Faces faces) {
  std::string text;
  AppendRoll(text, PreparedFormat(format), number, faces);
  return text;
}

bool CopyRollsToTextFile(RollRange selection, const std::string& name) {
  if (!FileIsOpen() || !FormatShowsRolls(Text::CopyRollsAsTextTitle)) return false;
  if (RefusesOpenRollFile(name, true)) return false;
  const std::string path = InProgramFolder(name);
  const RollRange range = Within(selection);
  const int32_t number = AskFirstNumber(range);
  return Trapped("CopyRollsToTextFile", [&] { WriteText(range, number, path); });
}

std::optional<RollRange> AskRollsToPrint(RollRange selection) {
  const RollRange all = Within({1, RollFile.RollCountInFile});
  if (IsEmpty(all)) {
    Show(Text::NoRollsToPrint, Text::PrintRollsTitle, msg::OkAlert);
    return std::nullopt;
  }
  if (!FormatShowsRolls(Text::PrintRollsTitle)) return std::nullopt;
  const bool wantsAll =
      Show(Text::AskToPrintAllRolls, Text::PrintRollsTitle, msg::AskYesNo) == AnswerYes;
  return wantsAll ? all : Within(selection);
}

std::vector<std::string> RollPrintRows(RollRange rolls) {
  const bool named = !RollFile.RollFileName.empty();
  std::vector<std::string> rows = {
      Say(Text::RollFileReport),
      Say(Text::ReportRollFile, named ? RollFile.RollFileName : Wording(Text::Untitled)),
      MediumDate(Now())};
  if (!named) return rows;
  const RollRange range = Within(rolls);
  Trapped("RollPrintRows", [&] {
    ForEachLine(range, range.first, [&rows](const std::string& line) { rows.push_back(line); });
  });
  return rows;
}

void StopRollFile() {
  const bool popup = PopupRoll.PopupRollActive;
  const int32_t use = RollFile.RollFileMode;
  if (popup && Show(Text::AskToClosePopup, Text::PopupRollsTitle, msg::AskYesNo) == AnswerYes) {
    ClosePopupRoll();
  }
  if (use == RollFilePlay) AskToRewind(Text::PlaybackStopped);
  if (use == RollFileRecord) AskToRewind(Text::RecordingStopped);
  if (popup || use != RollFileOff) FrontEnd.RefreshViews();
}

}  // namespace tessarel
