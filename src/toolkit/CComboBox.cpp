#include "toolkit/CComboBox.h"

#include <QStyleOption>
#include <QWheelEvent>

#include "toolkit/Accessibility.h"
#include "toolkit/IsolatedText.h"

CComboBox::CComboBox(QWidget* parent) : QComboBox(parent) {
  InstallAccessibility();
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

void CComboBox::Select(int position) {
  setCurrentIndex(position >= 0 && position < count() ? position : -1);
}

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

void CComboBox::initStyleOption(QStyleOptionComboBox* option) const {
  QComboBox::initStyleOption(option);
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
