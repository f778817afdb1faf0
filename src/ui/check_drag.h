// The drag of a check from the bar below the table: what travels is its denomination, 1 to 5.
#pragma once

namespace tessarel {

inline constexpr char CheckMimeType[] = "application/x-tessarel-check";

}  // namespace tessarel
