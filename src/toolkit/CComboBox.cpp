#include "toolkit/CComboBox.h"

#include <algorithm>

#include <QAbstractItemView>
#include <QScrollBar>
#include <QStandardItemModel>
#include <QStyleOption>
#include <QWheelEvent>

#include "toolkit/IsolatedText.h"

namespace {

constexpr int kLongest = 44;  // characters of average width

}  // namespace

CComboBox::CComboBox(QWidget* parent) : QComboBox(parent) {
  setFocusPolicy(Qt::StrongFocus);
  setContextMenuPolicy(Qt::NoContextMenu);  // the dialog shows a context menu instead
  setMaxVisibleItems(20);
  if (isRightToLeft()) setItemDelegate(new IsolatedTexts(this));
}

void CComboBox::Add(const QString& text, int value) {
  const bool first = count() == 0;
  addItem(text, value);
  if (first) setCurrentIndex(-1);
}

void CComboBox::Fill(const std::vector<std::pair<QString, int>>& entries) {
  clear();
  QList<QStandardItem*> items;
  items.reserve(static_cast<qsizetype>(entries.size()));
  for (const auto& [text, value] : entries) {
    items.append(new QStandardItem(text));
    items.last()->setData(value, Qt::UserRole);
  }
  static_cast<QStandardItemModel*>(model())->invisibleRootItem()->appendRows(items);
  setCurrentIndex(-1);
}

void CComboBox::Select(int position) { setCurrentIndex(position); }

bool CComboBox::SelectValue(int value) {
  const int position = findData(value);
  if (position >= 0) setCurrentIndex(position);
  return position >= 0;
}

void CComboBox::Pick(int position) {
  if (position < 0 || position >= count()) return;
  hidePopup();
  setCurrentIndex(position);
  Q_EMIT activated(position);
}

std::optional<int> CComboBox::SelectedValue() const {
  const QVariant value = currentData();
  return value.isValid() ? std::optional(value.toInt()) : std::nullopt;
}

QSize CComboBox::sizeHint() const {
  const QSize whole = QComboBox::sizeHint();
  wholeWidth_ = whole.width();
  return {std::min(whole.width(), kLongest * fontMetrics().averageCharWidth()), whole.height()};
}

// Changing the policy discards the measured width. `AdjustToContents` must not stay: Qt would then
// measure all entries again for each one that is added.
void CComboBox::UpdateWidth() {
  setSizeAdjustPolicy(AdjustToContents);
  setSizeAdjustPolicy(AdjustToContentsOnFirstShow);
}

void CComboBox::showPopup() {
  if (wholeWidth_ > width()) {
    view()->setMinimumWidth(view()->sizeHintForColumn(0) +
                            view()->verticalScrollBar()->sizeHint().width());
  }
  QComboBox::showPopup();
}

void CComboBox::initStyleOption(QStyleOptionComboBox* option) const {
  QComboBox::initStyleOption(option);
  if (wholeWidth_ > width()) {
    const QRect room =
        style()->subControlRect(QStyle::CC_ComboBox, option, QStyle::SC_ComboBoxEditField, this);
    option->currentText =
        fontMetrics().elidedText(option->currentText, Qt::ElideRight, room.width());
  }
  if (isRightToLeft()) option->currentText = Isolated(option->currentText);
}

// Otherwise scrolling a page would change the list that happens to have the focus.
void CComboBox::wheelEvent(QWheelEvent* event) {
  if (hasFocus() && event->modifiers().testFlag(Qt::ControlModifier)) {
    QComboBox::wheelEvent(event);
  } else {
    event->ignore();
  }
}
