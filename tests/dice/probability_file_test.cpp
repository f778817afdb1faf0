#include "dice/probability_file.h"

#include <gtest/gtest.h>

#include <deque>
#include <random>
#include <string>
#include <vector>

#include "base/file_io.h"
#include "base/folders.h"
#include "base/front_end.h"
#include "base/message.h"
#include "base/temporary_folder.h"
#include "dice/probability_balance.h"
#include "texts/language.h"

namespace tessarel {
namespace {

constexpr size_t WrittenBytes = 1280, ContentBytes = 1152;
constexpr const char* FormatLine = "Tessarel Probability File, Data Format 4.6";

int Messages = 0;

class ProbabilityFileTest : public ::testing::Test {
 protected:
  void SetUp() override {
    Reset();
    SetAppFolder(folder_.Path());
    FrontEnd.ShowMessage = [] { ++Messages; };
  }
  void TearDown() override { Reset(); }
  static void Reset() {
    Probability = {};
    Message = {};
    FrontEnd = {};
    Folders = {};
    SetLanguage(English);
    Messages = 0;
  }

  std::string Written() {
    SaveProbabilityFile("mine.prb");
    return ReadWholeFile(folder_.Path() + "mine.prb", 1 << 20);
  }
  void Put(const std::string& name, const std::string& bytes) {
    WriteFileAtomically(folder_.Path() + name, bytes);
  }

  TemporaryFolder folder_;
};

int32_t WordAt(const std::string& bytes, size_t word) {
  int32_t value = 0;
  for (size_t k = 4; k-- > 0;)
    value = value << 8 | static_cast<uint8_t>(bytes[256 + word * 4 + k]);
  return value;
}

TEST_F(ProbabilityFileTest, BytesAreInTheirPlaces) {
  BalanceMatrix(7, 6, 258);
  const std::string bytes = Written();
  ASSERT_EQ(bytes.size(), WrittenBytes);
  EXPECT_EQ(bytes.substr(0, 256), FormatLine + std::string(256 - 42, ' '));
  EXPECT_EQ(bytes.substr(ContentBytes), std::string(WrittenBytes - ContentBytes, '\0'));
  EXPECT_EQ(WordAt(bytes, 0), FreeFormMark);
  EXPECT_EQ(WordAt(bytes, 1), 1);
  EXPECT_EQ(WordAt(bytes, 2), 6);
  EXPECT_EQ(WordAt(bytes, 7 * 14 + 6), LockFlag);
  EXPECT_EQ(WordAt(bytes, 112 + 7 * 14 + 6), 258);
  EXPECT_EQ(bytes.substr(256 + (112 + 7 * 14 + 6) * 4, 4), std::string("\x02\x01\0\0", 4));
  EXPECT_EQ(WordAt(bytes, 112 + 1 * 14 + 6), ShareOf(1, 6));
  EXPECT_EQ(WordAt(bytes, 112 + 2 * 14 + 13), ShareOf(2, 13));
}

TEST_F(ProbabilityFileTest, MatrixComesBackAsItStood) {
  std::mt19937 random(7);
  for (ProbabilityPlane* plane :
       {&Probability.ProbabilityMatrix.Flags, &Probability.ProbabilityMatrix.Shares}) {
    for (auto& column : *plane) {
      for (int32_t& value : column)
        value = static_cast<int32_t>(random());
    }
  }
  const ProbabilityPlanes matrix = Probability.ProbabilityMatrix;
  Probability.ProbabilityChanged = true;
  SaveProbabilityFile("mine.prb");
  EXPECT_FALSE(Probability.ProbabilityChanged);
  const std::string path = folder_.Path() + "mine.prb";
  EXPECT_EQ(Probability.ProbabilityFileName, path);
  Probability = {};
  Probability.ProbabilityChanged = true;
  EXPECT_TRUE(OpenProbabilityFile("mine.prb"));
  EXPECT_EQ(Probability.ProbabilityMatrix, matrix);
  EXPECT_EQ(Probability.ProbabilityFileName, path);
  EXPECT_FALSE(Probability.ProbabilityChanged);
  EXPECT_FALSE(Probability.ProbabilityMatrixActive);
  EXPECT_EQ(Messages, 0);
}

TEST_F(ProbabilityFileTest, WholeMatrixIsNeeded) {
  const std::string bytes = Written() + "more";
  for (size_t length = 0; length <= bytes.size(); ++length) {
    EXPECT_EQ(MatrixOfBytes(bytes.substr(0, length)).has_value(), length >= ContentBytes) << length;
  }
  EXPECT_EQ(MatrixOfBytes(bytes.substr(0, ContentBytes)), Probability.ProbabilityMatrix);
}

TEST_F(ProbabilityFileTest, FormatLineIsExactOverItsLength) {
  const std::string bytes = Written();
  for (size_t k = 0; k < 200; ++k) {
    std::string other = bytes;
    other[k] = static_cast<char>(other[k] ^ 0x20);
    EXPECT_EQ(MatrixOfBytes(other).has_value(), k >= 42) << k;
  }
  EXPECT_TRUE(MatrixOfBytes(FormatLine + std::string("1 by hand") + bytes.substr(51)));
  EXPECT_FALSE(MatrixOfBytes(" " + bytes));
}

TEST_F(ProbabilityFileTest, MatrixWithoutAnyShareIsRefused) {
  std::string bytes = Written();
  const auto put = [&bytes](int column, int row, char value) {
    bytes[256 + static_cast<size_t>(112 + column * 14 + row) * 4] = value;
  };
  std::fill(bytes.begin() + 256, bytes.end(), '\0');
  EXPECT_FALSE(MatrixOfBytes(bytes));
  put(TotalColumn, 6, 1);  // totals are not drawn from
  put(2, FirstDieRow, 1);
  EXPECT_FALSE(MatrixOfBytes(bytes));
  put(7, 6, 1);
  EXPECT_TRUE(MatrixOfBytes(bytes));
}

TEST_F(ProbabilityFileTest, RefusedFilesAreReportedAndChangeNothing) {
  BalanceMatrix(2, 6, 5000);
  Probability.ProbabilityFileName = "/tmp/before.prb";
  const ProbabilityPlanes before = Probability.ProbabilityMatrix;
  SetLanguage(German);
  const std::string refused[] = {"", "garbage", std::string(5000, '\xFF'),
                                 FormatLine + std::string(300, ' ')};
  for (const std::string& bytes : refused) {
    Put("bad.prb", bytes);
    EXPECT_FALSE(OpenProbabilityFile("bad.prb"));
    EXPECT_EQ(Message.MsgText,
              "Diese Datei stammt aus einer älteren Version, ist beschädigt oder keine echte "
              "Wahrscheinlichkeitsdatei von Tessarel.\r\r" +
                  folder_.Path() + "bad.prb");
    EXPECT_EQ(Message.MsgTitle, "Fehler");
  }
  EXPECT_EQ(Messages, 4);
  EXPECT_EQ(Probability.ProbabilityMatrix, before);
  EXPECT_EQ(Probability.ProbabilityFileName, "/tmp/before.prb");
  EXPECT_TRUE(Probability.ProbabilityChanged);
}

TEST_F(ProbabilityFileTest, MissingFilesAreLeftToTheCaller) {
  EXPECT_FALSE(OpenProbabilityFile("nowhere.prb"));
  EXPECT_FALSE(OpenProbabilityFile(folder_.Path()));
  EXPECT_EQ(Messages, 0);
  Put("huge.prb", std::string(2 << 20, ' '));
  EXPECT_EQ(FaultOf([] { OpenProbabilityFile("huge.prb"); }), NumberOf(FaultNumber::FileAccess));
}

TEST_F(ProbabilityFileTest, UnsavedMatricesAreAskedAbout) {
  struct Case {
    const char* name;
    int32_t changed, answer;
    SaveChoice onExit, beforeNew;
  };
  using enum SaveChoice;
  constexpr Case Cases[] = {
      {"/tmp/mine.prb", 0, AnswerYes, GoOn, GoOn},
      {"", -1, AnswerYes, GoOn, SaveUnderNewName},
      {"/tmp/mine.prb", -1, AnswerYes, SaveUnderNewName, SaveUnderNewName},
      {"/tmp/default.prb", -1, AnswerYes, SaveUnderItsName, SaveUnderItsName},
      {"/tmp/default.prb", -1, AnswerNo, GoOn, GoOn},
      {"/tmp/mine.prb", -1, AnswerCancel, Cancel, Cancel},
  };
  static int32_t answer;
  FrontEnd.ShowMessage = [] {
    ++Messages;
    Message.MsgResult = answer;
  };
  for (const auto& [name, changed, pressed, onExit, beforeNew] : Cases) {
    Probability.ProbabilityFileName = name;
    Probability.ProbabilityChanged = changed;
    answer = pressed;
    Messages = 0;
    EXPECT_EQ(AskToSaveOnExit(), onExit) << name;
    EXPECT_EQ(Messages, changed != 0 && *name != '\0' ? 1 : 0);
    EXPECT_EQ(AskToSaveBeforeNew(), beforeNew) << name;
  }
  EXPECT_EQ(Message.MsgText,
            "These probabilities have not been saved.\r\rDo you want to save them now?");
  EXPECT_EQ(Message.MsgTitle, "Save Probabilities?");
}

}  // namespace
}  // namespace tessarel
