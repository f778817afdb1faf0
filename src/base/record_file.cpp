#include "base/record_file.h"

#include <algorithm>
#include <type_traits>
#include <utility>

#include "base/fault.h"
#include "base/file_io.h"
#include "base/single_byte_text.h"

namespace tessarel {

namespace {

using RecordBytes = std::array<uint8_t, Record::Size>;

// Where the slot begins, when slots are `width` bytes each.
size_t SlotStart(int slot, size_t width) {
  if (slot < 0 || static_cast<size_t>(slot) >= Record::Size / width) RaiseIndexOutOfRange();
  return static_cast<size_t>(slot) * width;
}

template <class Value>
void Put(RecordBytes& bytes, int slot, Value value) {
  const size_t start = SlotStart(slot, sizeof(Value));
  const auto bits = static_cast<uint64_t>(value);
  for (size_t k = 0; k < sizeof(Value); ++k)
    bytes[start + k] = static_cast<uint8_t>(bits >> (8 * k));
}

template <class Value>
Value Get(const RecordBytes& bytes, int slot) {
  const size_t start = SlotStart(slot, sizeof(Value));
  uint64_t bits = 0;
  for (size_t k = 0; k < sizeof(Value); ++k)
    bits |= static_cast<uint64_t>(bytes[start + k]) << (8 * k);
  return static_cast<Value>(static_cast<std::make_unsigned_t<Value>>(bits));
}

void CheckField(int first, int width) {
  if (first < 0 || width < 0 || first > Record::Size - width) RaiseIndexOutOfRange();
}

}  // namespace

int32_t Record::Word(int slot) const {
  return Get<int32_t>(Bytes, slot);
}

void Record::PutWord(int slot, int32_t value) {
  Put(Bytes, slot, value);
}

Money Record::Amount(int slot) const {
  return Money::FromRaw(Get<int64_t>(Bytes, slot));
}

void Record::PutAmount(int slot, Money value) {
  Put(Bytes, slot, value.Raw());
}

int32_t Record::AmountAsInt(int slot) const {
  constexpr int64_t Half = Money::Scale / 2;
  const Money amount = Amount(slot);
  int64_t whole = amount.Floor();
  const int64_t rest = (amount.Raw() % Money::Scale + Money::Scale) % Money::Scale;
  if (rest > Half || (rest == Half && whole % 2 != 0)) ++whole;
  if (whole < INT32_MIN || whole > INT32_MAX) RaiseOverflow();
  return static_cast<int32_t>(whole);
}

int16_t Record::Short(int slot) const {
  return Get<int16_t>(Bytes, slot);
}

void Record::PutShort(int slot, int16_t value) {
  Put(Bytes, slot, value);
}

std::string Record::TextField(int first, int width) const {
  CheckField(first, width);
  const auto start = Bytes.begin() + first;
  return FieldText(std::string(start, start + width));
}

void Record::PutTextField(int first, int width, std::string_view text) {
  CheckField(first, width);
  const std::string field = PadText(text, static_cast<size_t>(width));
  std::copy(field.begin(), field.end(), Bytes.begin() + first);
}

RecordFile RecordFile::Load(const std::string& path, int maxRecords) {
  return OfBytes(ReadWholeFile(path, static_cast<size_t>(maxRecords) * Record::Size));
}

RecordFile RecordFile::OfBytes(std::string_view bytes) {
  RecordFile file;
  for (size_t start = 0; start < bytes.size(); start += Record::Size) {
    const std::string_view part = bytes.substr(start, Record::Size);
    std::copy(part.begin(), part.end(), file.Add().Bytes.begin());
  }
  return file;
}

void RecordFile::Save(const std::string& path) const {
  std::string bytes;
  bytes.reserve(records_.size() * Record::Size);
  for (const Record& record : records_)
    bytes.append(record.Bytes.begin(), record.Bytes.end());
  WriteFileAtomically(path, bytes);
}

const Record& RecordFile::At(int number) const {
  if (number < 1 || number > Count()) {
    throw Fault(FaultNumber::InputPastEnd, FaultWording.InputPastEnd);
  }
  return records_[static_cast<size_t>(number - 1)];
}

Record& RecordFile::At(int number) {
  return const_cast<Record&>(std::as_const(*this).At(number));
}

}  // namespace tessarel
