#include "files/game_records.h"

#include <algorithm>

namespace tessarel {

Record& GameRecords::Next() {
  if (!Reading()) file_.Add();
  return file_.At(++number_);
}

void GameRecords::Words(std::span<const WordField> fields) {
  Next();
  for (const WordField& field : fields) {
    std::visit(
        [&](auto* values) {
          for (int k = 0; k < field.Count; ++k)
            Word(field.Slot + k, values[k]);
        },
        field.First);
  }
}

void GameRecords::Moneys(std::span<const MoneyField> fields) {
  Next();
  MoneysHere(fields);
}

void GameRecords::MoneysHere(std::span<const MoneyField> fields) {
  for (const MoneyField& field : fields) {
    std::visit(
        [&](auto* values) {
          for (int k = 0; k < field.Count; ++k)
            Amount(field.Slot + k, values[k]);
        },
        field.First);
  }
}

void GameRecords::Text(std::string& text) {
  Record& record = Next();
  if (Reading())
    text = record.Text();
  else
    record.PutText(text);
}

void GameRecords::LongText(std::string& text) {
  Record& record = Next();
  if (Reading())
    text = record.LongText();
  else
    record.PutLongText(text);
}

void GameRecords::TextAndDate(std::string& text, std::string& date) {
  Record& record = Next();
  if (Reading()) {
    text = record.Text();
    date = record.DateText();
  } else {
    record.PutText(text);
    record.PutDateText(date);
  }
}

void GameRecords::Amount(int slot, Money& value) {
  Record& record = file_.At(number_);
  if (Reading())
    value = record.Amount(slot);
  else
    record.PutAmount(slot, value);
}

void GameRecords::Amount(int slot, int32_t& value) {
  Record& record = file_.At(number_);
  if (Reading())
    value = record.AmountAsInt(slot);
  else
    record.PutAmount(slot, value);
}

// Counts that an amount has no room for stay at its end.
void GameRecords::Amount(int slot, int64_t& value) {
  constexpr int64_t Most = INT64_MAX / Money::Scale;
  Record& record = file_.At(number_);
  if (Reading())
    value = record.Amount(slot).Floor();
  else
    record.PutAmount(slot, Money::FromWhole(std::clamp(value, -Most, Most)));
}

void GameRecords::Amount(int slot, bool& value) {
  int32_t number = value ? -1 : 0;
  Amount(slot, number);
  value = number != 0;
}

void GameRecords::Short(int slot, int32_t& value) {
  Record& record = file_.At(number_);
  if (Reading())
    value = record.Short(slot);
  else
    record.PutShort(slot, static_cast<int16_t>(value));
}

}  // namespace tessarel
