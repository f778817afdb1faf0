// The general text table: every user-visible text that modules share, by number, in six languages.
// A language without a variant of its own shows the English one. Texts are UTF-8 and hold only
// characters that Windows-1252 has; "&" marks the shortcut letter of a caption.
#pragma once

#include <array>
#include <cstdint>
#include <initializer_list>
#include <string>
#include <string_view>

namespace tessarel {

enum LanguageNumber : int32_t { English, Spanish, German, French, Turkish, Italian };
inline constexpr int LanguageCount = 6;

// The text `id` in `language` (outside 0 to 5: English); empty for an unknown id. A text with
// variable parts holds "%1", "%2" where they go; see FillIn.
std::string_view GetText(int32_t language, int id);

// The same in the language in force.
std::string_view GetText(int id);

// Titles of the questions that texts 39 and 155 ask.
enum TextTitle : int { TitleRandomNumberGenerator, TitleAutoRollDelay };
inline constexpr int TitleCount = 2;

// The title in `language` (outside 0 to 5: English), or in the language in force.
std::string_view GetTitle(int32_t language, TextTitle title);
std::string_view GetTitle(TextTitle title);

// A text of one module's own table, in the order of LanguageNumber; an empty variant falls back to
// the English one.
using SixTexts = std::array<std::string_view, LanguageCount>;

// The variant in the language in force.
std::string_view Localized(const SixTexts& texts);

// The same as a string of its own.
std::string LocalizedText(const SixTexts& texts);

// `text` with "%1" to "%9" replaced by the values in their order; a mark without a value stands.
std::string FillIn(std::string_view text, std::initializer_list<std::string_view> values);
std::string FillIn(std::string_view text, std::string_view first, std::string_view second = {});
std::string FillIn(const SixTexts& texts, std::initializer_list<std::string_view> values);

// Puts a language in force (outside 0 to 5: English) together with the title of fault reports.
void SetLanguage(int32_t language);

}  // namespace tessarel
