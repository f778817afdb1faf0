// The records of a game file in their order, written and read by the same calls: a list of fields
// says which value stands in which slot, and the direction is the file's. The blocks of the game
// file (files/game_blocks.h) are made of these.
#pragma once

#include <algorithm>
#include <array>
#include <cstdint>
#include <initializer_list>
#include <span>
#include <string>
#include <type_traits>
#include <variant>

#include "base/money.h"
#include "base/record_file.h"

namespace tessarel {

// `Count` values that stand next to each other in the record, from `Slot` on, and in memory.
template <class... Values>
struct SlotField {
  int Slot;
  std::variant<Values*...> First;
  int Count = 1;
};
using WordField = SlotField<int32_t, uint32_t, bool>;  // a bool is 0 or -1
using MoneyField = SlotField<Money, int32_t, bool>;    // whole numbers and flags as amounts

// All of an array, in neighbouring slots.
template <class Values>
constexpr WordField WordRow(int firstSlot, Values& values) {
  return {firstSlot, values.data(), static_cast<int>(values.size())};
}

// The lists of parts of a record as one.
template <size_t... Sizes>
constexpr auto Joined(const std::array<WordField, Sizes>&... lists) {
  std::array<WordField, (Sizes + ...)> all{};
  auto* next = all.data();
  ((next = std::ranges::copy(lists, next).out), ...);
  return all;
}

// Slots of a record that are not in its list of fields: those that are written one by one, and
// those that have no use.
struct SlotsApart {
  std::initializer_list<int> Single = {}, Unused = {};
};

// Whether the fields of a record and the slots apart take every slot between the first and the last
// of them once, all of them within the record.
template <class Field, size_t Fields>
consteval bool TakeEachSlotOnce(const std::array<Field, Fields>& fields,
                                const SlotsApart& apart = {}) {
  constexpr int Slots = std::is_same_v<Field, WordField> ? Record::Words : Record::Moneys;
  std::array<int, Slots> taken{};
  bool within = true;
  const auto take = [&](int slot) {
    within = within && slot >= 0 && slot < Slots;
    if (within) ++taken[static_cast<size_t>(slot)];
  };
  for (const Field& field : fields) {
    for (int k = 0; k < field.Count; ++k)
      take(field.Slot + k);
  }
  for (const int slot : apart.Single)
    take(slot);
  for (const int slot : apart.Unused)
    take(slot);
  const auto first = std::ranges::find_if(taken, [](int times) { return times != 0; });
  const auto behind = std::find(first, taken.end(), 0);
  return within && std::all_of(first, behind, [](int times) { return times == 1; }) &&
         std::all_of(behind, taken.end(), [](int times) { return times == 0; });
}

class GameRecords {
 public:
  enum class Direction { Write, Read };

  // Records are added after the last one of the file, or taken from its first one on.
  GameRecords(RecordFile& file, Direction direction) : file_(file), direction_(direction) {}

  bool Reading() const { return direction_ == Direction::Read; }

  // Moves on to the next record. Reading after the last one raises "Input past end of file".
  Record& Next();

  // The next record, and the slots of it that the fields name; the others stay 0.
  void Words(std::span<const WordField> fields);
  void Moneys(std::span<const MoneyField> fields);
  // The same with the record that Next has moved to.
  void MoneysHere(std::span<const MoneyField> fields);

  // The next record as a text, alone or with the date of the file that it names.
  void Text(std::string& text);
  void LongText(std::string& text);
  void TextAndDate(std::string& text, std::string& date);

  // One value and its slot in the record that Next has moved to.
  template <class Value>
  void Word(int slot, Value& value) {
    Record& record = file_.At(number_);
    if (Reading())
      value = static_cast<Value>(record.Word(slot));
    else if constexpr (std::is_same_v<Value, bool>)
      record.PutWord(slot, value ? -1 : 0);
    else
      record.PutWord(slot, static_cast<int32_t>(value));
  }
  void Amount(int slot, Money& value);
  void Amount(int slot, int32_t& value);
  void Amount(int slot, int64_t& value);
  void Amount(int slot, bool& value);
  void Short(int slot, int32_t& value);

 private:
  RecordFile& file_;
  Direction direction_;
  int number_ = 0;
};

// Values one after the other over as many records as they need: a record is begun when the one
// before it holds its share.
class SlotRun {
 public:
  SlotRun(GameRecords& records, int slotsInRecord)
      : records_(records), slotsInRecord_(slotsInRecord), slot_(slotsInRecord) {}

  template <class Value>
  void Word(Value& value) {
    records_.Word(NextSlot(), value);
  }
  void Amount(Money& value) { records_.Amount(NextSlot(), value); }
  void Amount(int64_t& value) { records_.Amount(NextSlot(), value); }
  void Amount(int32_t& value) { records_.Amount(NextSlot(), value); }
  void Short(int32_t& value) { records_.Short(NextSlot(), value); }

 private:
  int NextSlot() {
    if (slot_ == slotsInRecord_) {
      records_.Next();
      slot_ = 0;
    }
    return slot_++;
  }

  GameRecords& records_;
  int slotsInRecord_, slot_;
};

}  // namespace tessarel
