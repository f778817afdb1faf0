// The entries of Settings.TableColor by what they colour.
#pragma once

namespace tessarel::colour {

enum Entry : int {
  Felt,
  Lines,
  RailInside,
  RailOutside,
  Floor,
  Die1,
  Die1Pips,
  Die2,
  Die2Pips,
  PassLine,
  Come,
  DontPass,
  DontCome,
  Horn,
  Big6,
  Big8,
  Point4,  // to Point10: the six point numbers
  Point10 = Point4 + 5,
  CrapsDisc,
  ElevenDisc,
  Over7,
  Under7,
  Seven,
  AnyCraps,
  Field,
  Midway,
  SharpShooter,
  RideTheLine,
  HardwayDice,
  HardwayPips,
  PropDice,
  PropPips,
  AllSmall,
  AllTall,
  MakeAll,
  FourRollsNo7,
  SevenPoint7,
  Point7,
  World,
  FirstForm,  // to LastForm: backgrounds of windows
  LastForm = 48,
};

}  // namespace tessarel::colour
