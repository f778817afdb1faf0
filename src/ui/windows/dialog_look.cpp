#include "ui/windows/dialog_look.h"

#include <QFontMetrics>
#include <QRegularExpression>
#include <QShortcut>
#include <algorithm>
#include <cmath>

#include "state/settings.h"
#include "ui/windows/help_window.h"

namespace tessarel {

namespace {

constexpr double MarginSteps = 4, GapSteps = 2, LeastButtonSteps = 19;
constexpr double HeadingScale = 1.25;

// A word of which every piece fits into `width`: a path breaks behind its folders, all else that
// is too long anywhere.
QString BreakableWord(const QString& word, const QFontMetrics& metrics, int width) {
  const QChar breakHere(0x200B);
  QStringList pieces = word.split('/');
  for (QString& piece : pieces) {
    if (metrics.horizontalAdvance(piece) <= width) continue;
    QString letters;
    for (const QChar letter : piece)
      (letters += letter) += breakHere;
    piece = letters;
  }
  return pieces.join(QString('/') + breakHere);
}

QString Breakable(const QString& text, const QFontMetrics& metrics, int width) {
  static const QRegularExpression Words(QStringLiteral("\\S+"));
  QString broken;
  qsizetype end = 0;
  for (const QRegularExpressionMatch& match : Words.globalMatch(text)) {
    broken += QStringView(text).mid(end, match.capturedStart() - end);
    const QString word = match.captured();
    broken += metrics.horizontalAdvance(word) <= width ? word : BreakableWord(word, metrics, width);
    end = match.capturedEnd();
  }
  return broken + text.mid(end);
}

}  // namespace

QFont DialogFont() {
  QFont font(QStringLiteral("DejaVu Sans"));
  font.setStyleHint(QFont::SansSerif);
  font.setPointSize(std::clamp(Settings.BasicFontSize, 9, 13));
  return font;
}

QFont HeadingFont() {
  QFont font = DialogFont();
  font.setPointSizeF(font.pointSizeF() * HeadingScale);
  font.setBold(true);
  return font;
}

int LookStep(double steps) {
  return static_cast<int>(std::lround(QFontMetrics(DialogFont()).height() * steps / 4));
}

void DressWindow(QWidget& window, const QString& title) {
  window.setFont(DialogFont());
  window.setWindowTitle(title);
}

void HelpOnF1(QWidget& window, int32_t topic) {
  new QShortcut(Qt::Key_F1, &window, [&window, topic] { ShowHelp(&window, topic); });
}

QVBoxLayout* MakeColumn(QWidget& window) {
  auto* const column = new QVBoxLayout(&window);
  const int margin = LookStep(MarginSteps);
  column->setContentsMargins(margin, margin, margin, margin);
  column->setSpacing(LookStep(GapSteps));
  return column;
}

QHBoxLayout* AddButtonRow(QVBoxLayout* column) {
  column->addSpacing(LookStep(2));
  auto* const row = new QHBoxLayout;
  row->setSpacing(LookStep(GapSteps));
  row->addStretch();
  column->addLayout(row);
  return row;
}

QPushButton* AddButton(QBoxLayout* row, const QString& caption, std::function<void()> pressed) {
  auto* const button = new QPushButton(caption);
  button->setFont(DialogFont());
  const int words = button->fontMetrics().size(Qt::TextShowMnemonic, caption).width();
  button->setMinimumWidth(std::max(LookStep(LeastButtonSteps), words + LookStep(6)));
  button->setMinimumHeight(LookStep(7));
  QObject::connect(button, &QPushButton::clicked, button, std::move(pressed));
  row->addWidget(button);
  return button;
}

QLabel* MakeHeading(const QString& text) {
  auto* const label = new QLabel(text);
  label->setTextFormat(Qt::PlainText);
  label->setFont(HeadingFont());
  return label;
}

QLabel* MakeWrapped(const QString& text, int width) {
  const QString shown = Breakable(text, QFontMetrics(DialogFont()), width);
  auto* const label = new QLabel(shown);
  label->setTextFormat(Qt::PlainText);
  label->setFont(DialogFont());
  label->setAlignment(Qt::AlignLeft | Qt::AlignTop);
  const QRect bounds = label->fontMetrics().boundingRect(QRect(0, 0, width, QWIDGETSIZE_MAX),
                                                         Qt::AlignLeft | Qt::TextWordWrap, shown);
  label->setWordWrap(true);
  const int needed = std::max(bounds.width(), 1) + 4;
  label->setFixedSize(needed, std::max(label->heightForWidth(needed), bounds.height()));
  return label;
}

int RunDialog(QDialog& dialog, bool resizable) {
  if (!resizable && dialog.layout() != nullptr) {
    dialog.layout()->setSizeConstraint(QLayout::SetFixedSize);
  }
  return dialog.exec();
}

}  // namespace tessarel
