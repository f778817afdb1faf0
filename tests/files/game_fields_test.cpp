// That a game file has one slot for each thing it keeps of windows and settings, and that nothing
// in such a slot is lost or does harm.
#include <set>

#include "base/record_file.h"
#include "files/game_blocks.h"
#include "reset.h"
#include "state/settings.h"
#include "state/view_state.h"
#include "stats/bankroll_graph.h"
#include "stats/selection.h"

namespace tessarel {
namespace {

// --- The members of a plain struct, whatever they are called ------------------------------------

struct Anything {
  template <class T>
  operator T() const;
};

template <class T, class... Members>
consteval int MemberCount() {
  if constexpr (requires { T{Members{}..., Anything{}}; }) {
    return MemberCount<T, Members..., Anything>();
  } else {
    return sizeof...(Members);
  }
}

// Calls visit(number, amount or flag) for everything in `value` except texts and lists of chips.
template <class T, class Visit>
void ForEachScalar(T& value, Visit visit) {
  const auto each = [&visit](auto&... members) { (ForEachScalar(members, visit), ...); };
  constexpr bool Grows = requires {
    value.clear();
  }
  , IsArray = requires {
    value.fill({});
  };
  if constexpr (std::is_arithmetic_v<T> || std::is_same_v<T, Money>) {
    visit(value);
  } else if constexpr (IsArray) {
    for (auto& element : value)
      ForEachScalar(element, visit);
  } else if constexpr (!Grows) {
    constexpr int Count = MemberCount<T>();
    // clang-format off
    if constexpr (Count == 1) { auto& [a] = value; each(a); }
    else if constexpr (Count == 2) { auto& [a, b] = value; each(a, b); }
    else if constexpr (Count == 3) { auto& [a, b, c] = value; each(a, b, c); }
    else if constexpr (Count == 4) { auto& [a, b, c, d] = value; each(a, b, c, d); }
    else if constexpr (Count == 5) { auto& [a, b, c, d, e] = value; each(a, b, c, d, e); }
    else if constexpr (Count == 6) { auto& [a, b, c, d, e, f] = value; each(a, b, c, d, e, f); }
    else if constexpr (Count == 7) {
      auto& [a, b, c, d, e, f, g] = value; each(a, b, c, d, e, f, g);
    } else if constexpr (Count == 9) {
      auto& [a, b, c, d, e, f, g, h, i] = value; each(a, b, c, d, e, f, g, h, i);
    } else if constexpr (Count == 17) {
      auto& [a, b, c, d, e, f, g, h, i, j, k, l, m, n, o, p, q] = value;
      each(a, b, c, d, e, f, g, h, i, j, k, l, m, n, o, p, q);
    } else if constexpr (Count == 19) {
      auto& [a, b, c, d, e, f, g, h, i, j, k, l, m, n, o, p, q, r, s] = value;
      each(a, b, c, d, e, f, g, h, i, j, k, l, m, n, o, p, q, r, s);
    } else if constexpr (Count == 23) {
      auto& [a, b, c, d, e, f, g, h, i, j, k, l, m, n, o, p, q, r, s, t, u, v, w] = value;
      each(a, b, c, d, e, f, g, h, i, j, k, l, m, n, o, p, q, r, s, t, u, v, w);
    } else if constexpr (Count == 56) {
      auto& [m0, m1, m2, m3, m4, m5, m6, m7, m8, m9, m10, m11, m12, m13, m14, m15, m16, m17, m18,
          m19, m20, m21, m22, m23, m24, m25, m26, m27, m28, m29, m30, m31, m32, m33, m34, m35, m36,
          m37, m38, m39, m40, m41, m42, m43, m44, m45, m46, m47, m48, m49, m50, m51, m52, m53, m54,
          m55] = value;
      each(m0, m1, m2, m3, m4, m5, m6, m7, m8, m9, m10, m11, m12, m13, m14, m15, m16, m17, m18, m19,
          m20, m21, m22, m23, m24, m25, m26, m27, m28, m29, m30, m31, m32, m33, m34, m35, m36, m37,
          m38, m39, m40, m41, m42, m43, m44, m45, m46, m47, m48, m49, m50, m51, m52, m53, m54, m55);
    } else {
      static_assert(Count < 0, "a line for so many members is missing");
    }
    // clang-format on
  }
}

// --- The records in memory -----------------------------------------------------------------------

void Records(RecordFile& file, GameRecords::Direction direction) {
  GameRecords records(file, direction);
  FilesInUse files;
  GameCounts counts;
  std::string header;
  records.Text(header);
  GeneralRecords(records, files, counts);
  RuleRecords(records);
  StatisticsRecords(records);
  ViewRecords(records, files);
}

RecordFile Written() {
  RecordFile file;
  Records(file, GameRecords::Direction::Write);
  return file;
}

void Read(RecordFile file) {
  GameViews = {};
  Records(file, GameRecords::Direction::Read);
  MendViews();
}

using Position = std::pair<int, size_t>;  // a record and a byte in it

std::vector<Position> Differences(const RecordFile& file, const RecordFile& other) {
  std::vector<Position> positions;
  for (int number = 1; number <= file.Count(); ++number) {
    for (size_t byte = 0; byte < Record::Size; ++byte) {
      if (file.At(number).Bytes[byte] != other.At(number).Bytes[byte])
        positions.emplace_back(number, byte);
    }
  }
  return positions;
}

class GameFields : public FreshTest {
 protected:
  // Alters one member after the other: each one changes one slot, which no other one has. Returns
  // how many have none.
  template <class State>
  int MembersWithoutASlot(State& state) {
    constexpr Position ConsoleWord{426, 13 * 4};  // of four members
    const RecordFile usual = Written();
    int without = 0;
    ForEachScalar(state, [&](auto& value) {
      const auto kept = value;
      if constexpr (std::is_same_v<decltype(kept), const bool>) {
        value = !kept;
      } else {
        value = kept + 1;
      }
      const auto changed = Differences(usual, Written());
      value = kept;
      if (changed.empty()) {
        ++without;
        return;
      }
      const auto [record, byte] = changed.front();
      SCOPED_TRACE(testing::Message() << "record " << record << " slot " << byte / 4);
      EXPECT_EQ(changed.back().first, record);
      EXPECT_LT(changed.back().second - byte, sizeof(Money));
      const Position slot{record, byte / 4 * 4};
      EXPECT_TRUE(taken_.insert(slot).second || slot == ConsoleWord);
    });
    return without;
  }

 private:
  std::set<Position> taken_;
};

TEST_F(GameFields, EveryMemberHasASlotOfItsOwn) {
  EXPECT_EQ(MembersWithoutASlot(GameViews), 0);
  EXPECT_EQ(MembersWithoutASlot(BankrollGraph), 0);
  EXPECT_EQ(MembersWithoutASlot(ViewSelections), 0);
  EXPECT_EQ(MembersWithoutASlot(Settings), 3) << "the rate of rolls, denomination 0, bet 0";
}

void FillViews(int32_t number) {
  ForEachScalar(GameViews, [number](auto& value) {
    if constexpr (std::is_same_v<decltype(value), bool&>) {
      value = true;
    } else {
      value = number;
    }
  });
}

TEST_F(GameFields, WhatAWindowKeepsComesBackUnchanged) {
  FillViews(1);
  GameViews.Pose.Zoom = 51;
  int32_t zoom = LeastTableZoom;
  for (TablePose& pose : GameViews.SavedPoses)
    pose.Zoom = zoom++;
  GameViews.BetResults.Text = "Hard 8";
  const RecordFile saved = Written();
  Read(saved);
  EXPECT_EQ(Differences(saved, Written()), std::vector<Position>{});
}

TEST_F(GameFields, WordsOutOfRangeAreOfNoHarmToAWindow) {
  for (const int32_t word : {INT32_MIN, -1000, -1, 97, 1'000'000, INT32_MAX}) {
    SCOPED_TRACE(word);
    FillViews(word);
    const RecordFile hostile = Written();
    Read(hostile);
    const ViewState& views = GameViews;
    EXPECT_EQ(views.Windows.Dice.State, word < 0 ? WindowOwned : WindowOpen);
    EXPECT_LE(std::abs(views.Windows.Dice.Left), FarthestPixel);
    EXPECT_GE(views.Windows.Dice.Width, 0);
    EXPECT_GE(views.Pose.Rotation, 0);
    EXPECT_LT(views.Pose.Rotation, 360);
    EXPECT_GE(views.SavedPoses[9].Zoom, LeastTableZoom);
    EXPECT_LE(views.SavedPoses[9].Zoom, MostTableZoom);
    EXPECT_EQ(views.Table.ChosenCheck, 0);
    EXPECT_EQ(views.Table.StatusBoxSize, 2);
    EXPECT_EQ(views.Players.Table, 0);
    EXPECT_EQ(views.RollTotals.Scope, 0);
    EXPECT_EQ(views.RollConsole.Display, 0);
    EXPECT_EQ(views.RollConsole.ButtonColor[5], word == 97 || word == 1'000'000 ? word : 0);
    EXPECT_EQ(views.Carried.RollDisplay, word) << "a word without a use is nobody's to change";
    const RecordFile mended = Written();
    Read(mended);
    EXPECT_EQ(Differences(mended, Written()), std::vector<Position>{});
  }
}

}  // namespace
}  // namespace tessarel
