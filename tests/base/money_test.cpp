#include "base/money.h"

#include <gtest/gtest.h>

#include <limits>
#include <utility>

#include "base/temporary_folder.h"

namespace tessarel {
namespace {

const Money Largest = Money::FromRaw(INT64_MAX), Smallest = Money::FromRaw(INT64_MIN);
const int OverflowFault = NumberOf(FaultNumber::Overflow);
const int DivisionFault = NumberOf(FaultNumber::DivisionByZero);

TEST(Money, ProductsRoundHalfToEven) {
  const Money half = Money::FromRaw(5000);
  EXPECT_EQ(half * Money::FromRaw(1), Money());
  EXPECT_EQ(half * Money::FromRaw(3), Money::FromRaw(2));
  EXPECT_EQ(half * Money::FromRaw(-3), Money::FromRaw(-2));
  EXPECT_EQ(half * Money::FromRaw(-1), Money());
  EXPECT_EQ(Largest * 1, Largest);
  EXPECT_EQ(Smallest * 1, Smallest);
}

TEST(Money, WhatDoesNotFitRaisesTheOverflowFault) {
  const Money unit = Money::FromRaw(1);
  EXPECT_EQ(Largest - unit + unit, Largest);
  EXPECT_EQ(FaultOf([&] { return Largest + unit; }), OverflowFault);
  EXPECT_EQ(FaultOf([&] { return Smallest - unit; }), OverflowFault);
  EXPECT_EQ(FaultOf([&] { return -Smallest; }), OverflowFault);
  EXPECT_EQ(FaultOf([&] { return Abs(Smallest); }), OverflowFault);
  EXPECT_EQ(FaultOf([&] { return Largest * 2; }), OverflowFault);
  EXPECT_EQ(FaultOf([&] { return Smallest * -1; }), OverflowFault);
  EXPECT_EQ(FaultOf([&] { return Money::FromWhole(922'337'203'685'478); }), OverflowFault);
  EXPECT_EQ(Money::FromWhole(-922'337'203'685'477).Floor(), -922'337'203'685'477);
}

TEST(Money, FromDoubleRoundsHalfToEven) {
  // Binary fractions that lie exactly between two amounts.
  const std::pair<double, int64_t> cases[] = {{0.00005, 0},
                                              {0.03125, 312},
                                              {0.09375, 938},
                                              {-0.03125, -312},
                                              {-0.09375, -938},
                                              {1.0, 10'000},
                                              {0.1 + 0.2, 3'000},
                                              {922e12, 9'220'000'000'000'000'000},
                                              {-0x1p63 / 10'000, INT64_MIN}};
  for (const auto& [value, raw] : cases)
    EXPECT_EQ(Money::FromDouble(value).Raw(), raw) << value;
  constexpr double Infinity = std::numeric_limits<double>::infinity();
  for (const double value : {0x1p63 / 10'000, -1e15, Infinity, -Infinity, Infinity - Infinity}) {
    EXPECT_EQ(FaultOf([&] { Money::FromDouble(value); }), OverflowFault) << value;
  }
}

TEST(Money, FloorsTowardsMinusInfinity) {
  const struct {
    int64_t Amount, Unit, Floor, Ceiling;
  } cases[] = {
      {35'000, 10'000, 30'000, 40'000}, {-35'000, 10'000, -40'000, -30'000},
      {30'000, 10'000, 30'000, 30'000}, {-30'000, 10'000, -30'000, -30'000},
      {-1, 50'000, -50'000, 0},         {3'500, 1'000, 3'000, 4'000},
  };
  for (const auto& row : cases) {
    const Money amount = Money::FromRaw(row.Amount), unit = Money::FromRaw(row.Unit);
    EXPECT_EQ(FloorToMultiple(amount, unit).Raw(), row.Floor);
    EXPECT_EQ(CeilingToMultiple(amount, unit).Raw(), row.Ceiling);
    EXPECT_EQ(IsMultiple(amount, unit), row.Floor == row.Ceiling);
  }
  EXPECT_EQ(Money::FromRaw(-1).Floor(), -1);
  EXPECT_EQ(Money::FromRaw(-20'000).Floor(), -2);
  EXPECT_EQ(FaultOf([] { FloorToMultiple(5, 0); }), DivisionFault);
  EXPECT_EQ(FaultOf([] { FloorToMultiple(5, -1); }), DivisionFault);
  EXPECT_EQ(FaultOf([] { MulDiv(5, 6, 0); }), DivisionFault);
  EXPECT_EQ(FaultOf([] { FloorToMultiple(Smallest, 1); }), OverflowFault);
}

TEST(Money, PayoffsAreFiguredInDouble) {
  EXPECT_EQ(Money::FromDouble(MulDiv(10, 7, 6)).Raw(), 116'667);
  EXPECT_EQ(Money::FromDouble(MulDiv(-10, 7, 6)).Raw(), -116'667);
  EXPECT_DOUBLE_EQ(MulDiv(Largest, 30, 1), 27'670'116'110'564'327.0);
}

TEST(Money, PlainTextComesBack) {
  const std::pair<int64_t, const char*> cases[] = {
      {0, "0"},         {50'000, "5"},
      {12'500, "1.25"}, {-1, "-0.0001"},
      {-1'000, "-0.1"}, {INT64_MAX, "922337203685477.5807"},
      {10'100, "1.01"}, {INT64_MIN, "-922337203685477.5808"},
  };
  for (const auto& [raw, text] : cases) {
    EXPECT_EQ(PlainText(Money::FromRaw(raw)), text);
    EXPECT_EQ(ParseMoney(text), Money::FromRaw(raw)) << text;
  }
}

TEST(Money, OtherSpellingsAreReadOrRefused) {
  const std::pair<const char*, int64_t> good[] = {
      {"+5", 50'000}, {".5", 5'000}, {"5.", 50'000}, {"-.0001", -1}, {"0005.1000", 51'000}};
  for (const auto& [text, raw] : good)
    EXPECT_EQ(ParseMoney(text), Money::FromRaw(raw)) << text;
  for (const char* text :
       {"", "-", ".", "-.", "1.00000", "1.23456", "1.2.3", "1,000", " 1", "1 ", "--1", "1e3", "x",
        "922337203685477.5808", "-922337203685477.5809", "99999999999999999999"}) {
    EXPECT_EQ(ParseMoney(text), std::nullopt) << text;
  }
}

TEST(Money, TypedAmountsMayLookAsTheyAreShown) {
  const std::pair<const char*, int64_t> good[] = {{" 1,000 ", 1000},
                                                  {"$1,234,567", 1'234'567},
                                                  {"-$500", -500},
                                                  {"$-9,999,999.00", -9'999'999},
                                                  {"12", 12}};
  for (const auto& [text, whole] : good)
    EXPECT_EQ(ParseTypedMoney(text), Money::FromWhole(whole)) << text;
  for (const char* text : {"", "$", "0,5", "1,5", "1,00", "1000,000", ",500", "1,0000", "1,000,",
                           "1.5,000", "5$", "1,000 000", "1,00.5"}) {
    EXPECT_EQ(ParseTypedMoney(text), std::nullopt) << text;
  }
}

}  // namespace
}  // namespace tessarel
