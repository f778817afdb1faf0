// Files of 256-byte records, numbered from 1: the form of game, probability, sessions log and
// hot-key files. A Record is read and written slot by slot, little-endian, through one pair of
// routines for each kind of slot; a RecordFile holds all records of a file in memory between one
// load and one save.
#pragma once

#include <array>
#include <cstddef>
#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

#include "base/money.h"

namespace tessarel {

// The slot and the field must lie inside the record, else the index fault.
struct Record {
  static constexpr int Size = 256;
  static constexpr int Words = 64, Moneys = 32, Shorts = 128;  // slots of a record of one kind
  static constexpr int FirstText = 200, SecondText = 56;       // widths in a record of two texts

  std::array<uint8_t, Size> Bytes{};

  int32_t Word(int slot) const;
  void PutWord(int slot, int32_t value);

  Money Amount(int slot) const;
  void PutAmount(int slot, Money value);
  // A whole number that stands in an amount's slot. Read back half to even; one that does not fit
  // raises the overflow fault.
  int32_t AmountAsInt(int slot) const;

  int16_t Short(int slot) const;
  void PutShort(int slot, int16_t value);

  // A text field of `width` bytes from byte `first`: UTF-8 here, single-byte and padded in the
  // record; a longer text is cut.
  std::string TextField(int first, int width) const;
  void PutTextField(int first, int width, std::string_view text);

  // The two texts of a Text record, and the one of a Long text record.
  std::string Text() const { return TextField(0, FirstText); }
  std::string DateText() const { return TextField(FirstText, SecondText); }
  void PutText(std::string_view text) { PutTextField(0, FirstText, text); }
  void PutDateText(std::string_view text) { PutTextField(FirstText, SecondText, text); }
  std::string LongText() const { return TextField(0, Size); }
  void PutLongText(std::string_view text) { PutTextField(0, Size, text); }
};

class RecordFile {
 public:
  // Far above any file the program writes, and little enough to hold in memory.
  static constexpr int MaxRecords = 1 << 18;

  // Reads the file. The bytes that a short last record lacks read as 0; a file of more than
  // `maxRecords` records raises the file access fault.
  static RecordFile Load(const std::string& path, int maxRecords = MaxRecords);
  // The same from the bytes of a file.
  static RecordFile OfBytes(std::string_view bytes);
  // Writes all records; on a fault an older file stands as it was.
  void Save(const std::string& path) const;

  int Count() const { return static_cast<int>(records_.size()); }
  // Record 1 to Count(); any other number raises the fault "Input past end of file".
  const Record& At(int number) const;
  Record& At(int number);
  // Adds an empty record after the last; good until the next one is added.
  Record& Add() { return records_.emplace_back(); }

 private:
  std::vector<Record> records_;
};

}  // namespace tessarel
