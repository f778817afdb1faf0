// What a redraw of the table costs. The plain table is kept in a pixmap by the window and drawn
// anew only when colours, rules or the size change; every other redraw copies it and puts what
// changes with the game on it.
#include <benchmark/benchmark.h>

#include <QApplication>
#include <QImage>
#include <QPainter>

#include "state/payoffs.h"
#include "state/table.h"
#include "ui/layout/hit_map.h"
#include "ui/layout/table_layout.h"
#include "ui/paint/table_paint.h"

namespace tessarel {
namespace {

constexpr QSize Screen(1920, 1200);

QTransform ToScreen() {
  return LayoutTransform(Screen.width(), Screen.height());
}

void PlainTable(benchmark::State& state) {
  DefaultPayoffs();
  LayoutOptions options;
  options.propositions = state.range(0) != 0;
  const TableLayout layout = MakeTableLayout(options);
  QImage picture(Screen, QImage::Format_RGB32);
  for ([[maybe_unused]] auto _ : state) {
    QPainter painter(&picture);
    painter.setTransform(ToScreen());
    PaintTable(painter, layout, ToScreen().m11());
  }
}
BENCHMARK(PlainTable)->ArgName("open")->Arg(0)->Arg(1)->Unit(benchmark::kMillisecond);

void RedrawWithTheGame(benchmark::State& state) {
  DefaultPayoffs();
  Table.Point = 6;
  Table.MarkedNumbers = 0b1101101101100;
  Table.FourRollCount = 2;
  Table.FirePointsMask = 1 << 4 | 1 << 9;
  const TableLayout layout = MakeTableLayout({});
  QImage plain(Screen, QImage::Format_RGB32), picture(Screen, QImage::Format_RGB32);
  plain.fill(Qt::black);
  for ([[maybe_unused]] auto _ : state) {
    QPainter painter(&picture);
    painter.drawImage(0, 0, plain);
    painter.setTransform(ToScreen());
    PaintTableState(painter, layout, ToScreen().m11());
    PaintRegionLight(painter, layout, bet::PassLine, true);
  }
  Table = TableState{};
}
BENCHMARK(RedrawWithTheGame)->Unit(benchmark::kMillisecond);

void HitMap(benchmark::State& state) {
  const TableLayout layout = MakeTableLayout({});
  for ([[maybe_unused]] auto _ : state)
    benchmark::DoNotOptimize(DrawHitMap(layout, ToScreen(), Screen));
}
BENCHMARK(HitMap)->Unit(benchmark::kMillisecond);

}  // namespace
}  // namespace tessarel

int main(int argc, char** argv) {
  if (!qEnvironmentVariableIsSet("QT_QPA_PLATFORM")) qputenv("QT_QPA_PLATFORM", "offscreen");
  QApplication application(argc, argv);
  benchmark::Initialize(&argc, argv);
  benchmark::RunSpecifiedBenchmarks();
  return 0;
}
