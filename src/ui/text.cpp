#include "ui/text.h"

#include "base/single_byte_text.h"

namespace tessarel {

namespace {

bool Keeps(QChar letter) {
  const std::string text = QString(letter).toStdString();
  return FromSingleByte(ToSingleByte(text)) == text;
}

}  // namespace

QString Shown(std::string_view utf8) {
  QString text = QString::fromUtf8(utf8.data(), static_cast<qsizetype>(utf8.size()));
  return text.replace(QLatin1String("\r\n"), QLatin1String("\n")).replace('\r', '\n');
}

QString Shown(Text text) {
  return Shown(Wording(text));
}

std::string Typed(const QString& text) {
  return text.toStdString();
}

QString InCodePage(const QString& text) {
  QString kept;
  for (const QChar letter : text) {
    const QString plain = letter == QChar(0x131) ? QStringLiteral("i")
                          : Keeps(letter)
                              ? QString(letter)
                              : QString(letter).normalized(QString::NormalizationForm_KD);
    for (const QChar part : plain) {
      if (!part.isMark() && Keeps(part)) kept += part;
    }
  }
  return kept;
}

QString WithoutMark(QString caption) {
  // A doubled mark stands for the character itself.
  caption.replace(QLatin1String("&&"), QString(QChar(1)));
  caption.remove('&');
  return caption.replace(QChar(1), QLatin1String("&"));
}

}  // namespace tessarel
