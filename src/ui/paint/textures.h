// The textures of felt, rail and floor: tiles made by arithmetic, which join without a seam, kept
// once made. Whoever paints a textured part of the table or a window's background calls these.
#pragma once

#include <QBrush>
#include <QColor>

namespace tessarel {

// The values of Settings.TableTexture.
enum class Texture : int {
  PlainFelt,
  FineCloth,
  CoarseCloth,
  Denim,
  Wood,
  Leather,
  OfThePart,  // what the part is made of: wood, padding, carpet or felt
  Velvet,
  Carpet,
};
inline constexpr int TextureCount = 9;

// The five parts that have an entry of Settings.TableTexture, in its order.
enum class TexturedPart : int { Felt, Lines, RailInside, RailOutside, Floor };

// The texture in force for a part.
Texture TextureInForce(TexturedPart part);

// A brush of the texture in a colour. One unit of the painter is one pixel of the tile.
QBrush TextureBrush(Texture texture, const QColor& colour);

}  // namespace tessarel
