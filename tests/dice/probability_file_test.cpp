#include "dice/probability_file.h"

#include <random>

#include "dice/probability_balance.h"
#include "reset.h"

namespace tessarel {
namespace {

constexpr size_t WrittenBytes = 1280, ContentBytes = 1152;
constexpr const char* FormatLine = "Tessarel Probability File, Data Format 4.6";

class ProbabilityFileTest : public FolderTest {
 protected:
  std::string Written() const {
    SaveProbabilityFile("mine.prb");
    return Read("mine.prb");
  }
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
  for (auto* plane :
       {&Probability.ProbabilityMatrix.Flags, &Probability.ProbabilityMatrix.Shares}) {
    for (auto& column : *plane)
      std::ranges::generate(column, [&] { return static_cast<int32_t>(random()); });
  }
  const ProbabilityPlanes matrix = Probability.ProbabilityMatrix;
  const auto expectClean = [this] {
    EXPECT_FALSE(Probability.ProbabilityChanged);
    EXPECT_EQ(Probability.ProbabilityFileName, Path("mine.prb"));
  };
  Probability.ProbabilityChanged = true;
  SaveProbabilityFile("mine.prb");
  expectClean();
  Probability = {};
  Probability.ProbabilityChanged = true;
  EXPECT_TRUE(OpenProbabilityFile("mine.prb"));
  EXPECT_EQ(Probability.ProbabilityMatrix, matrix);
  EXPECT_FALSE(Probability.ProbabilityMatrixActive);
  expectClean();
  EXPECT_TRUE(Shown.empty());
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
    Write("bad.prb", bytes);
    EXPECT_FALSE(OpenProbabilityFile("bad.prb"));
    ASSERT_EQ(Shown.size(), 1u);
    EXPECT_TRUE(
        Shown[0].Text.ends_with("Wahrscheinlichkeitsdatei von Tessarel.\r\r" + Path("bad.prb")));
    EXPECT_EQ(std::exchange(Shown, {})[0].Title, "Fehler");
  }
  EXPECT_FALSE(OpenProbabilityFile("nowhere.prb")) << "left to the caller";
  EXPECT_FALSE(OpenProbabilityFile(Path("")));
  EXPECT_TRUE(Shown.empty());
  Write("huge.prb", std::string(2 << 20, ' '));
  EXPECT_EQ(FaultOf([] { OpenProbabilityFile("huge.prb"); }), NumberOf(FaultNumber::FileAccess));
  EXPECT_EQ(Probability.ProbabilityMatrix, before);
  EXPECT_EQ(Probability.ProbabilityFileName, "/tmp/before.prb");
  EXPECT_TRUE(Probability.ProbabilityChanged);
}

TEST_F(ProbabilityFileTest, UnsavedMatricesAreAskedAbout) {
  using enum SaveChoice;
  const struct {
    const char* name;
    bool changed;
    int32_t answer;
    SaveChoice onExit, beforeNew;
    // clang-format off
  } cases[] = {
      {"/tmp/mine.prb", false, AnswerYes, GoOn, GoOn},
      {"", true, AnswerYes, GoOn, SaveUnderNewName},
      {"/tmp/mine.prb", true, AnswerYes, SaveUnderNewName, SaveUnderNewName},
      {"/tmp/default.prb", true, AnswerYes, SaveUnderItsName, SaveUnderItsName},
      {"/tmp/default.prb", true, AnswerNo, GoOn, GoOn},
      {"/tmp/mine.prb", true, AnswerCancel, Cancel, Cancel}};
  // clang-format on
  const std::string question =
      "Save Probabilities?: These probabilities have not been saved.\r\rDo you want to save them "
      "now?";
  for (const auto& [name, changed, answer, onExit, beforeNew] : cases) {
    Probability.ProbabilityFileName = name;
    Probability.ProbabilityChanged = changed;
    Always = answer;
    EXPECT_EQ(AskToSaveOnExit(), onExit) << name;
    EXPECT_EQ(std::exchange(Shown, {}).size(), changed && *name != '\0' ? 1u : 0u);
    EXPECT_EQ(AskToSaveBeforeNew(), beforeNew) << name;
    EXPECT_EQ(Said(), changed ? Strings{question} : Strings{});
  }
}

}  // namespace
}  // namespace tessarel
