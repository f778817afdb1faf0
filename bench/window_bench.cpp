// What the window costs: a redraw of the whole table with eight players, one changed stack, and the
// rolls a second that the Hyper-Drive reaches in the window beside those of the core alone.
#include <benchmark/benchmark.h>

#include <QApplication>
#include <QDir>
#include <QTemporaryDir>

#include "base/front_end.h"
#include "engine/bets.h"
#include "play/players.h"
#include "play/roll_driver.h"
#include "play/start_up.h"
#include "state/books.h"
#include "state/settings.h"
#include "ui/main_window.h"

namespace tessarel {
namespace {

constexpr QSize Screen(1920, 1200);
constexpr int RollsOfRun = 40'000'000;

const std::string& Folder() {
  static const QTemporaryDir folder;
  static const std::string path = folder.path().toStdString();
  return path;
}

// The window's messages would wait for somebody.
void AnswerNothing() {
  FrontEnd.ShowMessage = [] {};
}

void SeatEight() {
  AnswerNothing();
  Settings.DisableAllSound = true;
  Settings.Notices = 0;
  for (int place = 1; place <= LastPlace; ++place) {
    SeatPlayer(place, "Player " + std::to_string(place), 100'000);
    for (const int number : {bet::PassLine, bet::Field, bet::Place6, bet::Place8, bet::Hard8,
                             bet::Lay4, bet::Buy10, bet::Come, bet::Hop34, bet::AllTall}) {
      PlaceBet({place, number, 35});
    }
  }
}

void RedrawTable(benchmark::State& state) {
  StartUp(Folder());
  MainWindow window(Folder());
  window.Start();
  SeatEight();
  GameViews.Table.DisplayPropBets = true;
  window.View()->resize(Screen);
  window.View()->DrawTable();
  QPixmap picture(Screen);
  for ([[maybe_unused]] auto _ : state)
    window.View()->render(&picture);
}
BENCHMARK(RedrawTable)->Unit(benchmark::kMillisecond);

void RedrawChangedStack(benchmark::State& state) {
  StartUp(Folder());
  MainWindow window(Folder());
  window.Start();
  SeatEight();
  TableView* view = window.View();
  view->resize(Screen);
  view->DrawTable();
  QPixmap picture(Screen);
  const QRect pile(view->PixelOf(4, bet::PassLine) - QPoint(40, 60), QSize(80, 100));
  for ([[maybe_unused]] auto _ : state)
    view->render(&picture, pile.topLeft(), QRegion(pile));
}
BENCHMARK(RedrawChangedStack)->Unit(benchmark::kMillisecond);

// Arg 0: the core alone; 1: under the window.
void HyperDrive(benchmark::State& state) {
  StartUp(Folder());
  std::unique_ptr<MainWindow> window;
  if (state.range(0) != 0) {
    window = std::make_unique<MainWindow>(Folder());
    window->Start();
  }
  AnswerNothing();
  Settings.BetNeededToShoot = 0;
  SeatPlayer(4, "Ann", 9'000'000);
  Settings.AutoStopRolls = RollsOfRun;
  for ([[maybe_unused]] auto _ : state) {
    Table.HyperDriveOn = true;  // without the question that the end of a person's run asks
    MakeRoll();
    Table.HyperDriveOn = false;
  }
  state.counters["rolls"] = benchmark::Counter(RollsOfRun * static_cast<double>(state.iterations()),
                                               benchmark::Counter::kIsRate);
}
BENCHMARK(HyperDrive)
    ->ArgName("window")
    ->Arg(0)
    ->Arg(1)
    ->Iterations(1)
    ->Unit(benchmark::kMillisecond);

void StartToFirstPaint(benchmark::State& state) {
  for ([[maybe_unused]] auto _ : state) {
    StartUp(Folder());
    MainWindow window(Folder());
    window.Start();
    QPixmap picture = window.grab();
    benchmark::DoNotOptimize(picture);
  }
}
BENCHMARK(StartToFirstPaint)->Unit(benchmark::kMillisecond);

}  // namespace
}  // namespace tessarel
