// What lies on the table and what is heard of it: painted to pictures and looked at pixel by pixel,
// and the sound files that ship with the program read back.
#include <gtest/gtest.h>

#include <QDir>
#include <QDirIterator>
#include <QFile>
#include <QImage>
#include <QTemporaryDir>
#include <cmath>
#include <vector>

#include "state/settings.h"
#include "state/table.h"
#include "ui/paint/check_paint.h"
#include "ui/program_folders.h"
#include "ui/sound/sound_lists.h"
#include "ui/sound/sounds.h"

namespace tessarel {
namespace {

class Things : public testing::Test {
 protected:
  void SetUp() override { Settings = {}, Table = {}; }
  void TearDown() override { Settings = {}, Table = {}; }
};

QImage Blank(int width, int height, double ratio = 1) {
  QImage image(QSizeF(width * ratio, height * ratio).toSize(), QImage::Format_ARGB32_Premultiplied);
  image.setDevicePixelRatio(ratio);
  image.fill(Qt::transparent);
  return image;
}

// The middles of the spots of white, unconnected with each other, in pixels.
std::vector<QPointF> WhiteSpots(const QImage& image) {
  const auto white = [&](QPoint at) {
    return image.rect().contains(at) && qGreen(image.pixel(at)) > 190;
  };
  QImage seen(image.size(), QImage::Format_Grayscale8);
  seen.fill(0);
  std::vector<QPointF> spots;
  for (int y = 0; y < image.height(); ++y) {
    for (int x = 0; x < image.width(); ++x) {
      std::vector<QPoint> open{{x, y}};
      QPointF sum;
      int count = 0;
      while (!open.empty()) {
        const QPoint at = open.back();
        open.pop_back();
        if (!white(at) || seen.pixelColor(at).red() != 0) continue;
        seen.setPixelColor(at, Qt::white);
        sum += at;
        ++count;
        for (const QPoint step : {QPoint(1, 0), QPoint(-1, 0), QPoint(0, 1), QPoint(0, -1)})
          open.push_back(at + step);
      }
      if (count > 12) spots.push_back(sum / count);
    }
  }
  return spots;
}

TEST_F(Things, DieComesToRestOnItsFaceInEveryStyle) {
  for (int style = -1; style <= DiceStyleCount; ++style) {
    Settings.DiceStyle = style;
    for (int face = 1; face <= 6; ++face) {
      QImage image = Blank(120, 120);
      QPainter painter(&image);
      PaintTumblingDie(painter, {60, 60}, 80, face, 1, 1 + face % 2);
      painter.end();
      const std::vector<QPointF> pips = WhiteSpots(image);
      EXPECT_EQ(pips.size(), static_cast<size_t>(face)) << "style " << style;
      for (const QPointF& pip : pips) {
        // Flat: every pip has its counterpart across the middle.
        EXPECT_TRUE(std::any_of(pips.begin(), pips.end(),
                                [&](const QPointF& other) {
                                  return QLineF(QPointF(119, 119) - pip, other).length() < 2.5;
                                }))
            << "face " << face;
      }
    }
  }
}

TEST_F(Things, TumbleEndsWithoutAJump) {
  const auto painted = [](double phase) {
    QImage image = Blank(120, 120);
    QPainter painter(&image);
    PaintTumblingDie(painter, {60, 60}, 80, 2, phase, 1);
    painter.end();
    return image;
  };
  // The two lies on the same diagonal just before the end as at rest.
  const std::vector<QPointF> before = WhiteSpots(painted(0.999)), rest = WhiteSpots(painted(1));
  ASSERT_EQ(before.size(), 2U);
  ASSERT_EQ(rest.size(), 2U);
  EXPECT_LT(QLineF(before[0], rest[0]).length(), 3);
  EXPECT_NE(painted(0), painted(0.4));
}

QRect Inked(const QImage& image) {
  QRect inked;
  for (int y = 0; y < image.height(); ++y) {
    for (int x = 0; x < image.width(); ++x) {
      if (qAlpha(image.pixel(x, y)) != 0) inked |= QRect(x, y, 1, 1);
    }
  }
  return inked;
}

TEST_F(Things, PilesFillTheirAreaAndNothingBeyondIt) {
  const QPointF foot(200, 200);
  for (const char* text : {"0.50", "1", "7", "63", "488", "12345.50", "99999999999999.9999"}) {
    for (const double scale : {0.5, 1.0, 1.7}) {
      const Money amount = *ParseMoney(text);
      PileLook look{.place = 3, .showAmount = true, .pixelsPerUnit = scale};
      const QRectF area = PileArea(foot, amount, look);
      QRect inked;
      for (const bool flash : {false, true}) {
        for (const PileButton button : {PileButton::None, PileButton::Off}) {
          look.flash = look.current = flash;
          look.button = button;
          ASSERT_EQ(PileArea(foot, amount, look), area) << text;
          QImage image = Blank(700, 700);
          QPainter painter(&image);
          painter.scale(scale, scale);
          PaintPile(painter, foot, amount, look);
          painter.end();
          inked |= Inked(image);
        }
      }
      const QRectF pixels(area.topLeft() * scale, area.size() * scale);
      EXPECT_TRUE(pixels.adjusted(-1, -1, 1, 1).contains(QRectF(inked))) << text << " at " << scale;
      const double spare = 0.25 * look.diameter * scale + 4;
      EXPECT_TRUE(QRectF(inked).contains(pixels.adjusted(spare, spare, -spare, -spare)))
          << text << " at " << scale;
    }
  }
}

TEST_F(Things, PilesShowWhichChecksTheyHold) {
  const auto painted = [](Money amount) {
    QImage image = Blank(120, 120);
    QPainter painter(&image);
    PaintPile(painter, {60, 80}, amount, {.diameter = 40});
    painter.end();
    return image;
  };
  const auto holds = [](const QImage& image, auto&& like) {
    for (int y = 0; y < image.height(); ++y) {
      for (int x = 0; x < image.width(); ++x) {
        if (qAlpha(image.pixel(x, y)) == 255 && like(image.pixelColor(x, y))) return true;
      }
    }
    return false;
  };
  const auto red = [](const QColor& c) { return c.red() > 140 && c.green() < 60 && c.blue() < 70; };
  const auto green = [](const QColor& c) { return c.green() > 90 && c.red() < 50; };
  const auto yellow = [](const QColor& c) {
    return c.red() > 200 && c.green() > 150 && c.blue() < 70;
  };
  EXPECT_TRUE(holds(painted(5), red));
  EXPECT_FALSE(holds(painted(5), green));
  EXPECT_TRUE(holds(painted(30), red));
  EXPECT_TRUE(holds(painted(30), green));
  EXPECT_FALSE(holds(painted(30), yellow));
  EXPECT_TRUE(holds(painted(*ParseMoney("30.5")), yellow));
  EXPECT_TRUE(Inked(painted(0)).isEmpty());
  EXPECT_TRUE(Inked(painted(-5)).isEmpty());
}

TEST_F(Things, PicturesFollowTheScreenAndTheSettings) {
  const auto painted = [](double ratio) {
    QImage image = Blank(80, 80, ratio);
    QPainter painter(&image);
    PaintPile(painter, {40, 50}, 31, {.place = 2});
    painter.end();
    return image;
  };
  const QImage once = painted(1), fine = painted(2), again = painted(1);
  EXPECT_EQ(once, again);
  EXPECT_EQ(fine.size(), QSize(160, 160));
  // Twice as fine, the pile still stands where it stood and is as large.
  const QRect coarse = Inked(once), sharp = Inked(fine);
  EXPECT_NEAR(sharp.left() / 2.0, coarse.left(), 2);
  EXPECT_NEAR(sharp.top() / 2.0, coarse.top(), 2);
  EXPECT_NEAR(sharp.width() / 2.0, coarse.width(), 3);
  Settings.CheckStyle = 0;
  EXPECT_NE(painted(1), once);
  Settings.CheckStyle = 77;
  EXPECT_EQ(painted(1), once);
  Settings.Denomination[5] = 30;
  EXPECT_NE(painted(1), once);
}

void Touch(const QString& path) {
  QDir().mkpath(QFileInfo(path).path());
  QFile file(path);
  ASSERT_TRUE(file.open(QIODevice::WriteOnly));
  file.write("RIFF0000WAVE");
}

TEST_F(Things, SoundListsHoldFilesAndFoldersByTheIndexRule) {
  const QTemporaryDir folder;
  const QString data = folder.path() + "/data", app = folder.path() + "/app";
  Touch(data + "/sounds/zinc.dce");
  Touch(data + "/sounds/Felt.dce/02.wav");
  Touch(data + "/sounds/Felt.dce/01.dce");
  Touch(data + "/sounds/Felt.dce/notes.txt");
  Touch(data + "/sounds/only.chp");
  Touch(data + "/sounds/voice.stk");
  QDir().mkpath(data + "/sounds/empty.dce");
  Touch(app + "/ZINC.DCE");
  Touch(app + "/Anna.stk/17.wav");
  const SoundLists lists = ReadSoundLists({data + "/sounds", app, folder.path() + "/missing"});

  EXPECT_EQ(ShownSounds(lists, SoundKind::Dice),
            QStringList({"< none >", "Felt", "ZINC", "< random >"}));
  EXPECT_EQ(ShownSounds(lists, SoundKind::Check), QStringList({"< none >", "only"}));
  EXPECT_EQ(ShownSounds(lists, SoundKind::StickPerson), QStringList({"< none >", "Anna"}));
  EXPECT_EQ(ShownSounds(lists, SoundKind::Win), QStringList({"< none >"}));

  EXPECT_EQ(ChosenSound(lists, SoundKind::Dice, 1)->files,
            QStringList({data + "/sounds/Felt.dce/01.dce", data + "/sounds/Felt.dce/02.wav"}));
  EXPECT_EQ(ChosenSound(lists, SoundKind::Dice, 2)->files, QStringList({app + "/ZINC.DCE"}));
  EXPECT_NE(ChosenSound(lists, SoundKind::Dice, 3), nullptr);
  for (const int index : {-1, 0, 4, 99}) {
    EXPECT_EQ(ChosenSound(lists, SoundKind::Dice, index), nullptr) << index;
  }
  EXPECT_EQ(ChosenSound(lists, SoundKind::Check, 2), nullptr);
  const SoundEntry& anna = *ChosenSound(lists, SoundKind::StickPerson, 1);
  EXPECT_EQ(CallFile(anna, 17), app + "/Anna.stk/17.wav");
  EXPECT_EQ(CallFile(anna, 7), QString());
}

TEST_F(Things, ShippedSoundsAreSoundFiles) {
  QDirIterator files(QString::fromStdString(DataFolder() + "/sounds"), QDir::Files,
                     QDirIterator::Subdirectories);
  int count = 0;
  for (; files.hasNext(); ++count) {
    const QString path = files.next();
    EXPECT_TRUE(IsWave(path)) << path.toStdString();
    EXPECT_GT(files.fileInfo().size(), 4096) << path.toStdString();
  }
  EXPECT_GT(count, 40);
}

TEST_F(Things, FreshTableHasASoundOfEveryKind) {
  LoadSounds(DataFolder(), "");
  EXPECT_FALSE(SoundFiles(SoundKind::Dice, Settings.DiceSound).empty());
  EXPECT_FALSE(SoundFiles(SoundKind::Check, Settings.CheckSound).empty());
  EXPECT_FALSE(SoundFiles(SoundKind::Win, Settings.WinSound).empty());
  EXPECT_EQ(SoundFiles(SoundKind::StickPerson, Settings.StickPersonVoice).size(), 18U);
  const SoundLists lists = ReadSoundLists({QString::fromStdString(DataFolder() + "/sounds")});
  for (const SoundEntry& person : lists.Of(SoundKind::StickPerson)) {
    for (int call = 1; call <= 18; ++call)
      EXPECT_FALSE(CallFile(person, call).isEmpty()) << call;
  }
  EXPECT_NE(NamedSound(lists, SoundKind::Dice, "SOFT"), nullptr);
  EXPECT_NE(NamedSound(lists, SoundKind::Win, "chips"), nullptr);
}

}  // namespace
}  // namespace tessarel
