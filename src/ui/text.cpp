#include "ui/text.h"

namespace tessarel {

QString Shown(std::string_view utf8) {
  QString text = QString::fromUtf8(utf8.data(), static_cast<qsizetype>(utf8.size()));
  return text.replace(QLatin1String("\r\n"), QLatin1String("\n")).replace('\r', '\n');
}

QString Shown(const SixTexts& texts) {
  return Shown(Localized(texts));
}

std::string Typed(const QString& text) {
  return text.toStdString();
}

QString WithoutMark(QString caption) {
  // A doubled mark stands for the character itself.
  caption.replace(QLatin1String("&&"), QString(QChar(1)));
  caption.remove('&');
  return caption.replace(QChar(1), QLatin1String("&"));
}

}  // namespace tessarel
