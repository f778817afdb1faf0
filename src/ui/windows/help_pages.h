// The pages of the help on disk: one HTML file for each topic and language, "NNN-name.html" with
// the topic's number in front. English is complete; what another language lacks is taken from it.
#pragma once

#include <QString>
#include <cstdint>
#include <vector>

namespace tessarel {

inline constexpr int HelpContents = 0;

struct HelpTopic {
  int Number = 0;
  QString FileName;  // "020-bets.html", the same in every language
};

// The folder of the pages of a language (outside 0 to 5: English).
QString HelpFolder(int32_t language);

// The topics of the English pages in the order of their numbers; none if the pages are missing.
std::vector<HelpTopic> HelpTopics();

// The file name of a topic; that of the contents for a topic there is none of.
QString HelpFileOfTopic(int topic);

// The topic of a page by its file name, without folder; -1 for other names.
int HelpTopicOfFile(const QString& fileName);

// The text of a page in a language, else in English; empty if there is neither. Only the file name
// counts, so that no link leads out of the help.
QString HelpPage(const QString& fileName, int32_t language);

// What stands between the title tags of a page.
QString HelpTitle(const QString& page);

}  // namespace tessarel
