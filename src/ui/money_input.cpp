#include "ui/money_input.h"

#include <QKeyEvent>
#include <QValidator>

#include "base/number_format.h"
#include "ui/text.h"

namespace tessarel {

namespace {

constexpr int LongestText = 15;  // what an amount can always hold

// Judges a text as if its characters were typed one after the other.
class MoneyText : public QValidator {
 public:
  MoneyText(int decimals, QObject* parent) : QValidator(parent), decimals_(decimals) {}

  State validate(QString& text, int&) const override {
    std::string taken;
    for (const QChar each : text) {
      const bool isPrintable = each.unicode() >= ' ';
      if (!isPrintable || MoneyKeyFilter(each.unicode(), decimals_, taken, taken.size()) == 0) {
        return Invalid;
      }
      taken += static_cast<char>(each.unicode());
    }
    return taken.empty() || taken == "." ? Intermediate : Acceptable;
  }

 private:
  int decimals_;
};

// The keyboard of many countries has a comma on its number pad.
class PadPoint : public QObject {
 public:
  explicit PadPoint(QLineEdit& box) : QObject(&box), box_(box) { box.installEventFilter(this); }

 protected:
  bool eventFilter(QObject* watched, QEvent* event) override {
    if (event->type() == QEvent::KeyPress) {
      const auto& key = static_cast<const QKeyEvent&>(*event);
      const bool isPadKey = key.modifiers().testFlag(Qt::KeypadModifier);
      if (isPadKey && (key.key() == Qt::Key_Comma || key.text() == QLatin1String(","))) {
        box_.insert(QStringLiteral("."));
        return true;
      }
    }
    return QObject::eventFilter(watched, event);
  }

 private:
  QLineEdit& box_;
};

}  // namespace

void TakeMoneyOnly(QLineEdit& box, int decimals) {
  box.setMaxLength(LongestText);
  box.setValidator(new MoneyText(decimals, &box));
  new PadPoint(box);
}

Money MoneyIn(const QLineEdit& box) {
  std::string text = Typed(box.text());
  if (text.starts_with('.')) text.insert(0, 1, '0');
  if (text.ends_with('.')) text.pop_back();
  return ParseMoney(text).value_or(Money());
}

}  // namespace tessarel
