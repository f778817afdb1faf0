#include <gtest/gtest.h>
#include <sys/wait.h>

#include <algorithm>
#include <array>
#include <cstdio>
#include <string>

namespace tessarel {
namespace {

struct Printed {
  std::string Output;
  int Status = 0;
};

Printed Advantage(const std::string& options) {
  Printed printed;
  std::FILE* pipe = popen((TESSAREL_SIM " advantage " + options + " 2>/dev/null").c_str(), "r");
  std::array<char, 4096> block;
  while (const size_t count = std::fread(block.data(), 1, block.size(), pipe))
    printed.Output.append(block.data(), count);
  printed.Status = WEXITSTATUS(pclose(pipe));
  return printed;
}

TEST(AdvantageCommand, PrintsALineForEachBet) {
  const Printed printed = Advantage("");
  EXPECT_EQ(printed.Status, 0);
  EXPECT_EQ(std::count(printed.Output.begin(), printed.Output.end(), '\n'), 94);
  EXPECT_NE(printed.Output.find("\n43  Pass Line                -0.4189%     54.4243%     -1.4141%"
                                "     99.9900%         3.38\n"),
            std::string::npos)
      << printed.Output;
}

TEST(AdvantageCommand, GivesJsonUnderTheRulesAskedFor) {
  const struct {
    std::string Options, Expected;
  } cases[] = {
      {"", R"({"bet":43,"name":"Pass Line","EvPerRoll":-0.004189,"EvPerDec":-0.014141,)"},
      {"--zero-outcomes", R"("name":"Hard 8","EvPerRoll":-0.027778,"EvPerDec":-0.027778,)"},
      {"--payoff 'Hard 8=10:1'", R"("name":"Hard 8","EvPerRoll":0.0,"EvPerDec":0.0,)"},
      {"--set LayVigPct=0", R"("name":"Lay 4","EvPerRoll":0.0,"EvPerDec":0.0,)"},
  };
  for (const auto& c : cases) {
    const Printed printed = Advantage("--json " + c.Options);
    EXPECT_EQ(printed.Status, 0) << c.Options;
    EXPECT_NE(printed.Output.find(c.Expected), std::string::npos) << c.Options;
  }
}

TEST(AdvantageCommand, RefusesWithoutOutput) {
  const struct {
    std::string Options;
    int Status;
  } cases[] = {
      {"--set BarNumber=3", 1},
      {"--payoff 'Hard 8=0:1'", 1},  // the closing tests want a win
      {"--set BarNumber", 2},
  };
  for (const auto& c : cases) {
    const Printed printed = Advantage(c.Options);
    EXPECT_EQ(printed.Status, c.Status) << c.Options;
    EXPECT_EQ(printed.Output, "") << c.Options;
  }
}

}  // namespace
}  // namespace tessarel
