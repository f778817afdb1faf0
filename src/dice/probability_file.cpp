#include "dice/probability_file.h"

#include "base/file_io.h"
#include "base/folders.h"
#include "base/message.h"
#include "base/record_file.h"
#include "base/single_byte_text.h"
#include "state/table.h"
#include "texts/say.h"

namespace tessarel {

namespace {

constexpr std::string_view FormatLine = "Tessarel Probability File, Data Format 4.6";
constexpr size_t LargestFile = 1 << 20;

// The matrix follows the record with the format line, and its last record is half used.
constexpr int FirstMatrixRecord = 2;
constexpr int MatrixWords = 2 * 8 * 14;
constexpr size_t ContentBytes = Record::Size + MatrixWords * sizeof(int32_t);

// Calls visit(value, record, slot) for each value of the matrix with its place in a file.
template <class Planes, class Visit>
void ForEachWord(Planes& planes, Visit&& visit) {
  int word = 0;
  for (auto* plane : {&planes.Flags, &planes.Shares}) {
    for (auto& column : *plane) {
      for (auto& value : column) {
        visit(value, FirstMatrixRecord + word / Record::Words, word % Record::Words);
        ++word;
      }
    }
  }
}

bool AnyShare(const ProbabilityPlanes& planes) {
  bool any = false;
  ForEachPair([&](int column, int row) { any |= At(At(planes.Shares, column), row) != 0; });
  return any;
}

void TakeName(const std::string& path) {
  Probability.ProbabilityFileName = path;
  Probability.ProbabilityChanged = false;
}

SaveChoice AskToSave(CheckedText<0> question, int32_t flags) {
  const int32_t answer = ShowMessage(Say(question), Say(Text::SaveProbabilities), flags);
  if (answer == AnswerCancel) return SaveChoice::Cancel;
  if (answer != AnswerYes) return SaveChoice::GoOn;
  return EqualIgnoringCase(ShortName(Probability.ProbabilityFileName), AutomaticProbabilityFile)
             ? SaveChoice::SaveUnderItsName
             : SaveChoice::SaveUnderNewName;
}

}  // namespace

std::optional<ProbabilityPlanes> MatrixOfBytes(std::string_view bytes) {
  if (bytes.size() < ContentBytes || !bytes.starts_with(FormatLine)) return std::nullopt;
  const RecordFile file = RecordFile::OfBytes(bytes.substr(0, ContentBytes));
  ProbabilityPlanes planes;
  ForEachWord(planes, [&file](int32_t& value, int record, int slot) {
    value = file.At(record).Word(slot);
  });
  if (!AnyShare(planes)) return std::nullopt;
  return planes;
}

bool OpenProbabilityFile(const std::string& name) {
  const std::string path = InFolder(Folders.AppFolder, name);
  if (!FileExists(path)) return false;
  const auto planes = MatrixOfBytes(ReadWholeFile(path, LargestFile));
  if (!planes) {
    ShowError(Say(Text::NotAProbabilityFile, path));
    return false;
  }
  Probability.ProbabilityMatrix = *planes;
  TakeName(path);
  return true;
}

void SaveProbabilityFile(const std::string& name) {
  const std::string path = InFolder(Folders.AppFolder, name);
  RecordFile file;
  Record& format = file.Add();
  format.PutText(FormatLine);
  format.PutDateText("");
  while ((file.Count() - 1) * Record::Words < MatrixWords)
    file.Add();
  ForEachWord(Probability.ProbabilityMatrix, [&file](int32_t value, int record, int slot) {
    file.At(record).PutWord(slot, value);
  });
  file.Save(path);
  TakeName(path);
}

SaveChoice AskToSaveOnExit() {
  if (Probability.ProbabilityFileName.empty() || !Probability.ProbabilityChanged) {
    return SaveChoice::GoOn;
  }
  return AskToSave(Text::CurrentProbabilitiesNotSaved, msg::AskYesNo | msg::Cancel);
}

SaveChoice AskToSaveBeforeNew() {
  if (!Probability.ProbabilityChanged) return SaveChoice::GoOn;
  return AskToSave(Text::TheseProbabilitiesNotSaved, msg::AskYesNo);
}

}  // namespace tessarel
