#include "base/message.h"

#include "base/trap.h"
#include "reset.h"

namespace tessarel {
namespace {

class Messages : public FreshTest {};

TEST_F(Messages, AnswerWithTheirDefaultButtonWhenNobodyIsThere) {
  const std::pair<int32_t, int32_t> cases[] = {
      {msg::Ok, 0},
      {msg::OkAlert, 0},
      {msg::AskYesNo, AnswerYes},
      {msg::AskYesDefault, AnswerYes},
      {msg::AskNoDefault, AnswerNo},
      {msg::Button0 | msg::Button1 | msg::DefaultSecond, 1}};
  for (const auto& [flags, answer] : cases)
    EXPECT_EQ(ShowMessage("Roll?", "Dice", flags), answer) << flags;
}

TEST_F(Messages, TheFrontEndMayAnswerOtherwise) {
  Answers = {AnswerCancel, "57"};
  EXPECT_FALSE(AskForText("Seed:", "Random Number Generator", "5"));
  Message.MsgTimeout = 100;
  EXPECT_TRUE(AskForText("Seed:", "Random Number Generator", "5"));
  EXPECT_EQ(Message.MsgInput, "57");
  EXPECT_EQ(Message.MsgTimeout, 0);
}

TEST_F(Messages, AFaultIsReportedAndTheCallerGoesOn) {
  int done = 0;
  const bool ranThrough = Trapped("FigureMaxBet", [&] {
    done = 1;
    RaiseDivisionByZero();
  });
  EXPECT_FALSE(ranThrough);
  EXPECT_EQ(done, 1);
  EXPECT_EQ(Said(), Strings{"Error: Division by zero, Error #11 occurred at: FigureMaxBet"});
  EXPECT_EQ(Message.MsgFlags, 513);
  EXPECT_TRUE(Trapped("FigureMaxBet", [&] { done = 2; }));
  EXPECT_EQ(done, 2);
}

}  // namespace
}  // namespace tessarel
