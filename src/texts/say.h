// Every text the program says, by its key in the catalogues (english.txt and its sisters), in the
// language in force. Texts are UTF-8; "&" marks the shortcut letter of a caption and "\r" is a line
// break. What varies in a text is handed to Say, and whether the number of values is right is
// checked where it is said, at compile time.
#pragma once

#include <concepts>
#include <initializer_list>
#include <string>
#include <string_view>
#include <type_traits>

#include "texts/text_keys.h"

namespace tessarel {

constexpr size_t ArgumentCount(Text text) {
  return TextArguments[static_cast<size_t>(text)];
}

// A text that takes `Count` values: only a key for which that holds converts to it.
template <size_t Count>
class CheckedText {
 public:
  consteval CheckedText(Text text) : text_(text) {
    if (ArgumentCount(text) != Count) throw "the text takes another number of values";
  }
  constexpr operator Text() const { return text_; }

 private:
  Text text_;
};

// A text without values as it is shown, in the language in force or in `language` (outside of those
// there are: English).
std::string_view Wording(Text text);
std::string_view Wording(Text text, int32_t language);

// The text with its values put in as they stand. Ends with an assertion when their number is wrong.
std::string FillText(Text text, std::initializer_list<std::string_view> values);

namespace detail {

inline std::string_view ValueText(std::string_view value) {
  return value;
}
template <std::integral Number>
std::string ValueText(Number value) {
  return std::to_string(value);
}

}  // namespace detail

// The text with its values, which are texts or whole numbers.
template <class... Values>
std::string Say(std::type_identity_t<CheckedText<sizeof...(Values)>> text,
                const Values&... values) {
  return FillText(text, {std::string_view(detail::ValueText(values))...});
}

// The same for a text that is chosen at run time.
template <class... Values>
std::string SayChosen(Text text, const Values&... values) {
  return FillText(text, {std::string_view(detail::ValueText(values))...});
}

}  // namespace tessarel
