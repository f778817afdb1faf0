// The boxes that scripts put on the screen: their title and their text.
#pragma once

#include <string>
#include <string_view>

namespace tessarel {

// "Auto-Bet (NAME)" with the player whose script runs; "Auto-Bet" without one.
std::string ScriptMessageTitle();

// A text with the line ends of scripts as a message has them: one carriage return each.
std::string MessageLines(std::string_view text);

}  // namespace tessarel
