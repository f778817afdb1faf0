// Names that players may bear: the script language must be able to tell them from its own words.
// Asked wherever a player is named or renamed.
#pragma once

#include <optional>
#include <string>
#include <string_view>

#include "base/message.h"

namespace tessarel {

// The word, phrase or sign of the language that the name holds, without blanks around it.
std::optional<std::string> ReservedWordIn(std::string_view name);

// Why nobody can be called that, with two line ends after it, ready for the question that follows;
// nothing for a good name.
std::optional<std::string> PlayerNameRefusal(std::string_view name);

// The form of the box that shows a refusal and asks for another name.
inline constexpr int32_t NameRefusalFlags =
    msg::Button0 | msg::Button3 | msg::Input | msg::PictureAlert;
static_assert(NameRefusalFlags == 585);

}  // namespace tessarel
