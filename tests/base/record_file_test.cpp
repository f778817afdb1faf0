#include "base/record_file.h"

#include <gtest/gtest.h>

#include <utility>

#include "base/file_io.h"
#include "base/temporary_folder.h"

namespace tessarel {
namespace {

const int IndexFault = NumberOf(FaultNumber::IndexOutOfRange);

std::string BytesOf(const Record& record, int first, int count) {
  return std::string(record.Bytes.begin() + first, record.Bytes.begin() + first + count);
}

TEST(Record, SlotsAreLittleEndian) {
  Record record;
  record.PutWord(1, 0x01020384);
  record.PutWord(63, INT32_MIN);
  record.PutShort(0, -2);
  record.PutShort(100, 0x1234);
  record.PutAmount(4, Money::FromRaw(-12345));
  EXPECT_EQ(BytesOf(record, 0, 8), std::string("\xFE\xFF\0\0\x84\x03\x02\x01", 8));
  EXPECT_EQ(BytesOf(record, 252, 4), std::string("\0\0\0\x80", 4));
  EXPECT_EQ(BytesOf(record, 200, 2), "\x34\x12");
  EXPECT_EQ(BytesOf(record, 32, 8), "\xC7\xCF\xFF\xFF\xFF\xFF\xFF\xFF");
  EXPECT_EQ(record.Word(1), 0x01020384);
  EXPECT_EQ(record.Word(63), INT32_MIN);
  EXPECT_EQ(record.Short(0), -2);
  EXPECT_EQ(record.Short(100), 0x1234);
  EXPECT_EQ(record.Amount(4), Money::FromRaw(-12345));
}

TEST(Record, SlotsOutsideRaiseTheIndexFault) {
  Record record;
  const auto& reading = record;
  constexpr std::array<int, 3> Outside[] = {
      {64, 32, 128}, {-1, -1, -1}, {INT32_MAX, INT32_MAX, INT32_MAX}};
  for (const auto& [word, amount, number] : Outside) {
    EXPECT_EQ(FaultOf([&, slot = word] { reading.Word(slot); }), IndexFault);
    EXPECT_EQ(FaultOf([&, slot = word] { record.PutWord(slot, 1); }), IndexFault);
    EXPECT_EQ(FaultOf([&, slot = amount] { reading.Amount(slot); }), IndexFault);
    EXPECT_EQ(FaultOf([&, slot = amount] { record.PutAmount(slot, 1); }), IndexFault);
    EXPECT_EQ(FaultOf([&, slot = number] { reading.Short(slot); }), IndexFault);
    EXPECT_EQ(FaultOf([&, slot = number] { record.PutShort(slot, 1); }), IndexFault);
  }
  EXPECT_EQ(FaultOf([&] { reading.TextField(201, 56); }), IndexFault);
  EXPECT_EQ(FaultOf([&] { record.PutTextField(-1, 5, ""); }), IndexFault);
  EXPECT_EQ(FaultOf([&] { reading.TextField(0, -1); }), IndexFault);
  EXPECT_EQ(record.Bytes, Record().Bytes);
}

TEST(Record, WholeNumbersInAmountsRoundHalfToEven) {
  const std::pair<int64_t, int32_t> cases[] = {
      {10000, 1},   {-10000, -1}, {15000, 2},   {25000, 2}, {24999, 2},
      {-15000, -2}, {-5000, 0},   {-25001, -3}, {-4999, 0}, {21474836470000, INT32_MAX},
  };
  Record record;
  for (const auto& [raw, whole] : cases) {
    record.PutAmount(3, Money::FromRaw(raw));
    EXPECT_EQ(record.AmountAsInt(3), whole) << raw;
  }
  for (const int64_t raw : {int64_t{21474836475000}, INT64_MIN, INT64_MAX}) {
    record.PutAmount(3, Money::FromRaw(raw));
    EXPECT_EQ(FaultOf([&] { record.AmountAsInt(3); }), NumberOf(FaultNumber::Overflow));
  }
}

TEST(Record, TextsAreSingleByteAndPadded) {
  Record record;
  record.PutText("  Zoë's table ");
  record.PutDateText("2026-11-22 19:04:05");
  EXPECT_EQ(BytesOf(record, 0, 16), "  Zo\xEB's table   ");
  EXPECT_EQ(BytesOf(record, 199, 4), " 202");
  EXPECT_EQ(record.Text(), "Zoë's table");
  EXPECT_EQ(record.DateText(), "2026-11-22 19:04:05");
  record.PutText(std::string(300, 'n'));
  EXPECT_EQ(record.Text(), std::string(200, 'n'));
  EXPECT_EQ(record.DateText(), "2026-11-22 19:04:05");
  record.PutLongText(std::string(300, 'l'));
  EXPECT_EQ(record.LongText(), std::string(256, 'l'));
  record.PutTextField(101, 100, "12");
  EXPECT_EQ(record.TextField(101, 100), "12");
}

class RecordFiles : public testing::Test {
 protected:
  TemporaryFolder folder_;
  const std::string name_ = folder_.Path() + "default.tsg";
};

TEST_F(RecordFiles, ComeBackAsSaved) {
  RecordFile file;
  for (int number = 1; number <= 3; ++number)
    file.Add().PutWord(number, -number);
  file.Save(name_);
  EXPECT_EQ(ReadWholeFile(name_, 10'000).size(), 768u);

  RecordFile loaded = RecordFile::Load(name_);
  ASSERT_EQ(loaded.Count(), 3);
  for (int number = 1; number <= 3; ++number) {
    EXPECT_EQ(loaded.At(number).Bytes, file.At(number).Bytes);
  }
  const int pastEnd = NumberOf(FaultNumber::InputPastEnd);
  EXPECT_EQ(FaultOf([&] { loaded.At(0); }), pastEnd);
  EXPECT_EQ(FaultOf([&] { loaded.At(4); }), pastEnd);
  loaded.At(2).PutWord(0, 7);
  loaded.Save(name_);
  EXPECT_EQ(RecordFile::Load(name_).At(2).Word(0), 7);
}

TEST_F(RecordFiles, AShortLastRecordReadsAsZerosAfterItsEnd) {
  WriteFileAtomically(name_, std::string(256, 'a') + "  short\x01");
  const RecordFile file = RecordFile::Load(name_);
  ASSERT_EQ(file.Count(), 2);
  EXPECT_EQ(file.At(2).Text(), "short\x01");
  EXPECT_EQ(file.At(2).Word(2), 0);
  WriteFileAtomically(name_, "");
  EXPECT_EQ(RecordFile::Load(name_).Count(), 0);
}

TEST_F(RecordFiles, AreRefusedWhenMissingOrTooLong) {
  EXPECT_EQ(FaultOf([&] { RecordFile::Load(name_); }), NumberOf(FaultNumber::FileNotFound));
  WriteFileAtomically(name_, std::string(513, 'a'));
  EXPECT_EQ(FaultOf([&] { RecordFile::Load(name_, 2); }), NumberOf(FaultNumber::FileAccess));
  EXPECT_EQ(RecordFile::Load(name_, 3).Count(), 3);
}

}  // namespace
}  // namespace tessarel
