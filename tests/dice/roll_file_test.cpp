#include "dice/roll_file.h"

#include "base/file_io.h"
#include "engine/unattended.h"
#include "reset.h"

namespace tessarel {
namespace {

constexpr const char* EndReason = "Stopped due to end of Dice Roll File reached.";
constexpr const char* InvalidReason = "Stopped due to Dice Roll File value out of limits.";

class RollFiles : public FolderTest {
 protected:
  // Opens a file of these bytes for playback.
  void Play(const std::string& bytes) const {
    Write("play.rol", bytes);
    OpenRollFile("play.rol");
    RewindForPlayback();
  }

  // The rolls up to the stop, as "14 66".
  static std::string PlayAll() {
    std::string rolls;
    while (const auto faces = PlayBackRoll()) {
      if (!rolls.empty()) rolls += ' ';
      rolls += std::to_string(faces->die1) + std::to_string(faces->die2);
    }
    return rolls;
  }

  static void StartRecording(const std::string& name, int32_t from = 1) {
    OpenRollFile(name);
    RollFile.RollFileMode = RollFileRecord;
    RollFile.NextRoll = from;
  }
};

TEST_F(RollFiles, RollsAreBytesInTheFile) {
  StartRecording("new.rol");
  for (const Faces faces : {Faces{1, 1}, Faces{7, 1}, Faces{1, 2}, Faces{1, 7}, Faces{2, 1},
                            Faces{0, 3}, Faces{6, 6}, Faces{3, -1}})
    RecordToRollFile(faces);  // faces that are none are never written
  EXPECT_EQ(RollFile.LastRoll, 4);
  EXPECT_EQ(RollFile.NextRoll, 5);
  EXPECT_EQ(RollFile.DisplayRoll, 5);
  EXPECT_EQ(RollFile.RollCountInFile, 4);
  CloseRollFile();
  EXPECT_EQ(Read("new.rol"), "\x24\x44\x28\xD8");
  EXPECT_EQ(RollFile.RollFileName, "");
  EXPECT_EQ(RollFile.NextRoll, 1);
}

TEST_F(RollFiles, PlaybackEndsAfterTheLastRoll) {
  Play("\x24\x44\xD8");
  Table.HyperDriveOn = true;
  EXPECT_EQ(PlayAll(), "11 12 66");
  EXPECT_TRUE(RollFile.EndReached);
  EXPECT_EQ(StopText(Table.Stop), EndReason);
  EXPECT_EQ(RollFile.RollFileMode, RollFilePlay);
  EXPECT_EQ(RollFile.LastRoll, 3);
  EXPECT_EQ(RollFile.NextRoll, 4);
  EXPECT_TRUE(Shown.empty());
  RewindForPlayback();
  EXPECT_FALSE(RollFile.EndReached);
  EXPECT_EQ(PlayAll(), "11 12 66");
  Play("\x25\x47");
  EXPECT_EQ(PlayAll(), "11 12") << "only the faces are tested";
}

TEST_F(RollFiles, InvalidRollStopsAndSwitchesOff) {
  for (const char byte : {'\0', '\x20', '\x04', '\x3C', '\xE4'}) {
    for (const bool hyper : {false, true}) {
      Play("\x24" + std::string(1, byte) + "\x24");
      Table.HyperDriveOn = hyper;
      EXPECT_EQ(PlayAll(), "11");
      EXPECT_FALSE(RollFile.EndReached);
      EXPECT_EQ(RollFile.RollFileMode, RollFileOff);
      EXPECT_EQ(RollFile.NextRoll, 2);
      EXPECT_EQ(StopText(Table.Stop), InvalidReason);
      EXPECT_EQ(std::exchange(Shown, {}).size(), hyper ? 0u : 1u);
    }
  }
  EXPECT_EQ(Message.MsgTitle, "Dice Roll File Error");
}

TEST_F(RollFiles, LongRecordingReplaysTheSameRolls) {
  constexpr int32_t Count = 200'000;
  const auto roll = [](int32_t k) { return Faces{k % 6 + 1, k / 7 % 6 + 1}; };
  StartRecording("long.rol");
  for (int32_t k = 0; k < Count; ++k)
    RecordToRollFile(roll(k));
  RewindForPlayback();
  for (int32_t k = 0; k < Count; ++k) {
    const auto faces = PlayBackRoll();
    ASSERT_TRUE(faces.has_value()) << k;
    ASSERT_EQ(RollByte(*faces), RollByte(roll(k))) << k;
  }
  EXPECT_FALSE(PlayBackRoll().has_value());
  EXPECT_TRUE(IsRollFile("long.rol"));
}

TEST_F(RollFiles, RecordingInTheMiddleOverwrites) {
  Write("old.rol", "\x24\x24\x24\x24");
  StartRecording("old.rol", 2);
  RecordToRollFile({6, 6});
  RecordToRollFile({5, 5});
  RollFile.NextRoll = 1;
  RecordToRollFile({2, 1});
  EXPECT_EQ(RollFile.RollCountInFile, 4);
  FlushRollFile();
  EXPECT_EQ(Read("old.rol"), "\x28\xD8\xB4\x24");
  RollFile.NextRoll = 4;
  RecordToRollFile({6, 6});
  RecordToRollFile({6, 6});
  EXPECT_EQ(RollFile.RollCountInFile, 5);
  CloseRollFile();
  EXPECT_EQ(Read("old.rol"), "\x28\xD8\xB4\xD8\xD8");
}

TEST_F(RollFiles, PlaybackSeesWhatWasJustRecorded) {
  Write("old.rol", "\x24\x24\x24");
  StartRecording("old.rol", 2);
  RecordToRollFile({6, 6});
  RollFile.RollFileMode = RollFilePlay;
  EXPECT_EQ(PlayAll(), "11");
  RollFile.NextRoll = 1;
  EXPECT_EQ(PlayAll(), "11 66 11");
}

TEST_F(RollFiles, RecordingGoesOnAfterPlayback) {
  Play("\x24\x44");
  PlayBackRoll();
  RollFile.RollFileMode = RollFileRecord;
  RecordToRollFile({6, 6});
  RecordToRollFile({6, 5});
  CloseRollFile();
  EXPECT_EQ(Read("play.rol"), "\x24\xD8\xB8");
}

TEST_F(RollFiles, PositionsOutsideTheFileAreBroughtIntoIt) {
  Write("old.rol", "\x24");
  for (const auto& [from, bytes] : {std::pair{-5, "\xD8"}, std::pair{9, "\xD8\xD8"}}) {
    StartRecording("old.rol", from);
    RecordToRollFile({6, 6});
    CloseRollFile();
    EXPECT_EQ(Read("old.rol"), bytes);
  }
  Play("\x24");
  RollFile.NextRoll = -5;
  EXPECT_EQ(PlayAll(), "11");
  RollFile.NextRoll = MaxRollsInFile + 1;
  EXPECT_EQ(PlayAll(), "");
  EXPECT_TRUE(RollFile.EndReached);
}

TEST_F(RollFiles, FileThatShrinksOrGrowsMeanwhileIsReadAsItIs) {
  Play(std::string(100'000, '\x24'));
  ASSERT_TRUE(PlayBackRoll().has_value());
  std::filesystem::resize_file(Path("play.rol"), 10);
  while (PlayBackRoll()) {
  }
  EXPECT_TRUE(RollFile.EndReached);
  EXPECT_EQ(RollFile.RollCountInFile, 10);
  RollFile.NextRoll = 11;
  std::ofstream(Path("play.rol"), std::ios::binary | std::ios::app) << "\xD8";
  EXPECT_EQ(PlayAll(), "66");
}

TEST_F(RollFiles, FilesBeyondTheLimitStopAtIt) {
  Write("huge.rol", "\x24");
  std::filesystem::resize_file(Path("huge.rol"), (uint64_t{1} << 31) + 100);
  StartRecording("huge.rol");
  EXPECT_EQ(RollFile.RollCountInFile, MaxRollsInFile);
  RollFile.NextRoll = MaxRollsInFile;
  RecordToRollFile({6, 6});
  EXPECT_EQ(FaultOf([] { RecordToRollFile({6, 6}); }), NumberOf(FaultNumber::Overflow));
  EXPECT_EQ(RollFile.RollFileMode, RollFileOff);
  RollFile.NextRoll = MaxRollsInFile;
  EXPECT_EQ(PlayAll(), "66");
  EXPECT_TRUE(RollFile.EndReached);
  EXPECT_EQ(std::filesystem::file_size(Path("huge.rol")), (uint64_t{1} << 31) + 100);
}

TEST_F(RollFiles, OpeningCreatesTheFileInTheProgramsFolder) {
  OpenRollFile("new.rol");
  EXPECT_TRUE(FileExists(Path("new.rol")));
  EXPECT_EQ(RollFile.RollFileName, Path("new.rol"));
  EXPECT_EQ(RollFile.RollFileMode, RollFileOff);
  RewindForPlayback();
  EXPECT_EQ(PlayAll(), "");
  EXPECT_EQ(StopText(Table.Stop), EndReason);
}

TEST_F(RollFiles, OpeningAnotherFileKeepsWhatWasRecorded) {
  StartRecording("first.rol");
  RecordToRollFile({1, 1});
  OpenRollFile(Path("second.rol"));
  EXPECT_EQ(Read("first.rol"), "\x24");
  EXPECT_EQ(RollFile.RollFileMode, RollFileOff);
  EXPECT_EQ(RollFile.NextRoll, 1);
}

TEST_F(RollFiles, WhatCannotBeOpenedOrReadIsAFault) {
  std::filesystem::create_directory(Path("folder.rol"));
  const int access = NumberOf(FaultNumber::FileAccess);
  EXPECT_EQ(FaultOf([] { OpenRollFile("folder.rol"); }), access);
  EXPECT_EQ(FaultOf([] { OpenRollFile("nowhere/new.rol"); }), access);
  EXPECT_EQ(FaultOf([] { OpenRollFile(std::string("new.rol\0x", 9)); }), access);
  EXPECT_EQ(FaultOf([] { IsRollFile("folder.rol"); }), access);
  EXPECT_EQ(FaultOf([] { IsRollFile("none.rol"); }), NumberOf(FaultNumber::FileNotFound));
  EXPECT_EQ(RollFile.RollFileName, "");
}

TEST_F(RollFiles, FailedWriteClosesTheFile) {
  StartRecording("new.rol");
  RecordToRollFile({1, 1});
  // A stream that may only read stands for a disk that takes no more.
  RollFile.File.close();
  RollFile.File.open(Path("new.rol"), std::ios::binary | std::ios::in);
  EXPECT_EQ(FaultOf([] { FlushRollFile(); }), NumberOf(FaultNumber::FileAccess));
  EXPECT_EQ(RollFile.RollFileMode, RollFileOff);
  EXPECT_EQ(FaultOf([] { CloseRollFile(); }), 0);
}

TEST_F(RollFiles, ReadOnlyFileIsNotRecordedTo) {
  Write("old.rol", "\x24");
  StartRecording("old.rol");
  RollFile.ReadOnly = true;
  EXPECT_EQ(FaultOf([] { RecordToRollFile({6, 6}); }), NumberOf(FaultNumber::FileAccess));
  EXPECT_EQ(RollFile.RollFileMode, RollFileOff);
  EXPECT_EQ(RollFile.NextRoll, 1);
}

TEST_F(RollFiles, RollFileTestLooksAtEveryByte) {
  const std::string full(70'000, '\xD8');
  const std::pair<std::string, bool> cases[] = {{"", true},
                                                {std::string(1, '\0'), true},
                                                {"\x24", true},
                                                {"\x25", false},
                                                {"\x24\x26", false},
                                                {full, true},
                                                {full + "\x01", false}};
  for (const auto& [bytes, passes] : cases) {
    Write("test.rol", bytes);
    EXPECT_EQ(IsRollFile("test.rol"), passes) << bytes.size();
  }
}

}  // namespace
}  // namespace tessarel
