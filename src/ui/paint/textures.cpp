#include "ui/paint/textures.h"

#include <QHash>
#include <QImage>
#include <algorithm>
#include <cmath>
#include <vector>

#include "state/settings.h"
#include "state/table.h"

namespace tessarel {

namespace {

constexpr int TileSide = 256;

// A value of 0 to 1 that looks random, always the same for a lattice point.
double Lattice(int x, int y, uint32_t seed) {
  uint32_t h =
      static_cast<uint32_t>(x) * 374761393U + static_cast<uint32_t>(y) * 668265263U + seed * 97U;
  h = (h ^ (h >> 13)) * 1274126177U;
  return static_cast<double>((h ^ (h >> 16)) & 0xFFFF) / 65535.0;
}

// Smooth noise of -1 to 1 with `across` by `down` cells in the tile, so that the edges meet.
double Noise(int x, int y, int across, int down, uint32_t seed) {
  const double u = static_cast<double>(x) * across / TileSide;
  const double v = static_cast<double>(y) * down / TileSide;
  const int cellX = static_cast<int>(u), cellY = static_cast<int>(v);
  const auto ease = [](double t) { return t * t * (3 - 2 * t); };
  const double fx = ease(u - cellX), fy = ease(v - cellY);
  const auto at = [&](int dx, int dy) {
    return Lattice((cellX + dx) % across, (cellY + dy) % down, seed);
  };
  const double top = std::lerp(at(0, 0), at(1, 0), fx);
  const double bottom = std::lerp(at(0, 1), at(1, 1), fx);
  return 2 * std::lerp(top, bottom, fy) - 1;
}

double Wave(int position, int period) {
  return std::sin(2 * M_PI * position / period);
}

double Weave(int x, int y, int thread) {
  // The thread on top alternates, as warp and weft do.
  const bool warp = (x / thread + y / thread) % 2 == 0;
  return (warp ? Wave(x, 2 * thread) : Wave(y, 2 * thread)) * (warp ? 1 : -1);
}

double WoodGrain(int x, int y) {
  // Long streaks that waver, with fine pores in them.
  const double waver = 7 * Noise(x, y, 3, 4, 11) + 3 * Noise(x, y, 6, 9, 12);
  const double rings = std::sin(2 * M_PI * (y * 7.0 / TileSide) + waver);
  return 0.55 * rings + 0.6 * Noise(x, y, 4, 96, 13) + 0.35 * Noise(x, y, 16, 128, 14);
}

double LeatherGrain(int x, int y) {
  // Rounded cells with creases where the noise changes its sign.
  const double cells = std::abs(Noise(x, y, 28, 28, 21)) + 0.5 * std::abs(Noise(x, y, 56, 56, 22));
  return std::min(1.0, 2.2 * cells) - 0.7;
}

// How much lighter or darker a pixel of the texture is, -1 to 1, and the strength of it.
double Relief(Texture texture, int x, int y) {
  const double speck = 2 * Lattice(x, y, 1) - 1;
  switch (texture) {
    case Texture::FineCloth:
      return 0.055 * Weave(x, y, 2) + 0.045 * speck + 0.02 * Noise(x, y, 8, 8, 2);
    case Texture::CoarseCloth:
      return 0.11 * Weave(x, y, 4) + 0.05 * speck + 0.03 * Noise(x, y, 8, 8, 3);
    case Texture::Denim:
      return 0.12 * Wave(x + 2 * y, 8) + 0.08 * Noise(x, y, 128, 16, 4) +
             0.05 * Noise(x, y, 6, 6, 5) + 0.05 * speck;
    case Texture::Wood:
      return 0.15 * WoodGrain(x, y);
    case Texture::Leather:
      return 0.13 * LeatherGrain(x, y) + 0.02 * speck;
    case Texture::Velvet:
      return 0.06 * Noise(x, y, 5, 7, 6) + 0.05 * Noise(x, y, 20, 40, 7) + 0.03 * speck;
    case Texture::Carpet:
      return 0.16 * speck + 0.1 * Noise(x, y, 64, 64, 8);
    default:
      return 0.028 * speck + 0.015 * Noise(x, y, 64, 64, 9);
  }
}

int Lightened(int channel, double relief) {
  // Dark colours move by more than their share, else they would show nothing.
  const double moved = channel + relief * (channel + 40);
  return std::clamp(static_cast<int>(std::lround(moved)), 0, 255);
}

const std::vector<float>& ReliefOf(Texture texture) {
  static QHash<int, std::vector<float>> reliefs;
  std::vector<float>& relief = reliefs[static_cast<int>(texture)];
  if (relief.empty()) {
    relief.reserve(TileSide * TileSide);
    for (int y = 0; y < TileSide; ++y) {
      for (int x = 0; x < TileSide; ++x)
        relief.push_back(static_cast<float>(Relief(texture, x, y)));
    }
  }
  return relief;
}

QImage MakeTile(Texture texture, const QColor& colour) {
  const std::vector<float>& relief = ReliefOf(texture);
  QImage tile(TileSide, TileSide, QImage::Format_RGB32);
  size_t k = 0;
  for (int y = 0; y < TileSide; ++y) {
    QRgb* row = reinterpret_cast<QRgb*>(tile.scanLine(y));
    for (int x = 0; x < TileSide; ++x, ++k) {
      const double by = static_cast<double>(relief[k]);
      row[x] = qRgb(Lightened(colour.red(), by), Lightened(colour.green(), by),
                    Lightened(colour.blue(), by));
    }
  }
  return tile;
}

Texture MaterialOf(TexturedPart part) {
  switch (part) {
    case TexturedPart::RailInside:
      return Texture::Leather;
    case TexturedPart::RailOutside:
      return Texture::Wood;
    case TexturedPart::Floor:
      return Texture::Carpet;
    default:
      return Texture::FineCloth;
  }
}

}  // namespace

Texture TextureInForce(TexturedPart part) {
  const int number = Settings.TableTexture[static_cast<int>(part)];
  if (number < 0 || number >= TextureCount) return Texture::PlainFelt;
  const Texture texture = static_cast<Texture>(number);
  return texture == Texture::OfThePart ? MaterialOf(part) : texture;
}

QBrush TextureBrush(Texture texture, const QColor& colour) {
  static QHash<quint64, QImage> tiles;
  // Moving a colour bar makes a tile for every step of it.
  constexpr qsizetype MostTiles = 24;
  if (tiles.size() > MostTiles) tiles.clear();
  QImage& tile = tiles[(static_cast<quint64>(texture) << 32) | colour.rgb()];
  if (tile.isNull()) tile = MakeTile(texture, colour);
  return QBrush(tile);
}

}  // namespace tessarel
