// What a walk over a window's widgets finds wrong with its texts: those that have too little room,
// and shortcuts that stand twice. Run it in each language on a window that is shown.
#pragma once

#include <QAbstractButton>
#include <QApplication>
#include <QCheckBox>
#include <QComboBox>
#include <QDir>
#include <QGroupBox>
#include <QHeaderView>
#include <QKeySequence>
#include <QLabel>
#include <QLineEdit>
#include <QPixmap>
#include <QPushButton>
#include <QRadioButton>
#include <QTabBar>
#include <algorithm>
#include <map>
#include <string>
#include <vector>

#include "ui/text.h"

namespace tessarel {

namespace text_fit {

// The room a widget's own text needs, with what the style draws around it; (0, 0) for none.
inline QSize RoomNeeded(const QWidget& widget) {
  if (const auto* label = qobject_cast<const QLabel*>(&widget)) {
    if (label->text().isEmpty()) return {0, 0};
    if (label->wordWrap()) return {0, label->heightForWidth(label->width())};
    return label->fontMetrics().size(Qt::TextShowMnemonic, label->text());
  }
  if (const auto* button = qobject_cast<const QPushButton*>(&widget)) {
    constexpr int Edges = 12;
    const int text = button->fontMetrics().size(Qt::TextShowMnemonic, button->text()).width();
    return {text + Edges, button->fontMetrics().height()};
  }
  const bool asItAsks =
      qobject_cast<const QAbstractButton*>(&widget) || qobject_cast<const QComboBox*>(&widget);
  if (asItAsks) return widget.minimumSizeHint();
  if (const auto* box = qobject_cast<const QGroupBox*>(&widget)) {
    return {box->fontMetrics().size(Qt::TextShowMnemonic, box->title()).width(), 0};
  }
  if (const auto* field = qobject_cast<const QLineEdit*>(&widget)) {
    return {field->fontMetrics().horizontalAdvance(field->placeholderText()), 0};
  }
  return {0, 0};
}

inline QString TextOf(const QWidget& widget) {
  const QVariant text = widget.property("text");
  return text.isValid() ? text.toString() : widget.objectName();
}

inline bool SectionsFit(const QHeaderView& header) {
  for (int section = 0; section < header.count(); ++section) {
    if (header.isSectionHidden(section)) continue;
    const QString text = header.model()->headerData(section, header.orientation()).toString();
    const int needed = header.fontMetrics().size(0, text).width();
    if (header.orientation() == Qt::Horizontal && header.sectionSize(section) < needed) {
      return false;
    }
  }
  return true;
}

inline bool TabsFit(const QTabBar& bar) {
  int widths = 0;
  for (int tab = 0; tab < bar.count(); ++tab) {
    widths += bar.tabRect(tab).width();
    if (bar.fontMetrics().size(Qt::TextShowMnemonic, bar.tabText(tab)).width() >
        bar.tabRect(tab).width()) {
      return false;
    }
  }
  return widths <= bar.width();
}

inline bool Fits(const QWidget& widget) {
  if (const auto* header = qobject_cast<const QHeaderView*>(&widget)) return SectionsFit(*header);
  if (const auto* bar = qobject_cast<const QTabBar*>(&widget)) return TabsFit(*bar);
  const QSize needed = RoomNeeded(widget);
  return needed.width() <= widget.width() && needed.height() <= widget.height();
}

}  // namespace text_fit

// The texts of labels, buttons, boxes, tabs and headings that are wider or higher than their
// widgets, or whose widgets stick out of what holds them.
inline std::vector<std::string> TextsThatDoNotFit(const QWidget& window) {
  std::vector<std::string> found;
  for (const QWidget* widget : window.findChildren<QWidget*>()) {
    if (!widget->isVisibleTo(&window) || widget->window() != &window) continue;
    const bool scrolls = widget->parentWidget()->objectName() == "qt_scrollarea_viewport";
    const bool inside = scrolls || text_fit::RoomNeeded(*widget).isNull() ||
                        widget->parentWidget()->rect().contains(widget->geometry());
    if (!inside || !text_fit::Fits(*widget)) found.push_back(Typed(text_fit::TextOf(*widget)));
  }
  return found;
}

// The captions of buttons and labelled fields whose shortcut another one has too.
inline std::vector<std::string> ClashingShortcuts(const QWidget& window) {
  std::map<QString, std::vector<std::string>> captions;
  for (const QWidget* widget : window.findChildren<QWidget*>()) {
    const auto* const label = qobject_cast<const QLabel*>(widget);
    const bool counts = qobject_cast<const QAbstractButton*>(widget) != nullptr ||
                        (label != nullptr && label->buddy() != nullptr);
    if (!counts || !widget->isVisibleTo(&window)) continue;
    const QString text = text_fit::TextOf(*widget);
    const QString shortcut = QKeySequence::mnemonic(text).toString();
    if (!shortcut.isEmpty()) captions[shortcut].push_back(Typed(text));
  }
  std::vector<std::string> clashing;
  for (const auto& [shortcut, texts] : captions) {
    if (texts.size() > 1) clashing.insert(clashing.end(), texts.begin(), texts.end());
  }
  return clashing;
}

// Leaves a picture of the window in the folder that TESSAREL_LOOKS names, for eyes to judge.
inline void SaveLook(QWidget& window, const QString& name) {
  const QString folder = qEnvironmentVariable("TESSAREL_LOOKS");
  if (folder.isEmpty()) return;
  window.activateWindow();  // the focus shows in an active window only
  QApplication::processEvents();
  window.grab().save(QDir(folder).filePath(name + ".png"));
}

}  // namespace tessarel
