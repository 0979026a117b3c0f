#include "toolkit/AccessibleLists.h"

#include <algorithm>
#include <utility>
#include <vector>

#include <QAbstractItemView>
#include <QAccessibleWidget>
#include <QLineEdit>
#include <QPointer>

#include "toolkit/AccessibleActions.h"
#include "toolkit/CComboBox.h"

namespace AdvancedControl {

namespace {

/// A list, named by its caption. Its text is the selected entry. Its children are the drop-down
/// and, if the list is editable, its field.
class ComboInterface final : public QAccessibleWidget, public QAccessibleTextInterface {
 public:
  explicit ComboInterface(CComboBox* combo) : QAccessibleWidget(combo, QAccessible::ComboBox) {}

  void* interface_cast(QAccessible::InterfaceType type) override {
    if (type == QAccessible::TextInterface) return static_cast<QAccessibleTextInterface*>(this);
    return QAccessibleWidget::interface_cast(type);
  }

  QString text(QAccessible::Text kind) const override {
    return kind == QAccessible::Value ? Combo().currentText() : QAccessibleWidget::text(kind);
  }
  QAccessible::State state() const override {
    QAccessible::State state = QAccessibleWidget::state();
    state.expandable = true;
    state.expanded = Combo().view()->isVisible();
    state.hasPopup = true;
    state.editable = Combo().isEditable();
    return state;
  }

  int childCount() const override { return Combo().isEditable() ? 2 : 1; }
  QAccessibleInterface* child(int index) const override {
    if (index == 0) return QAccessible::queryAccessibleInterface(Combo().view());
    return index == 1 ? QAccessible::queryAccessibleInterface(Combo().lineEdit()) : nullptr;
  }
  int indexOfChild(const QAccessibleInterface* child) const override {
    if (child->object() == Combo().view()) return 0;
    return Combo().isEditable() && child->object() == Combo().lineEdit() ? 1 : -1;
  }

  QStringList actionNames() const override {
    return QStringList{showMenuAction()} + QAccessibleWidget::actionNames();
  }
  void doAction(const QString& action) override {
    if (action != showMenuAction()) return QAccessibleWidget::doAction(action);
    ActLikeAUser(&Combo(), [](CComboBox& combo) {
      combo.view()->isVisible() ? combo.hidePopup() : combo.showPopup();
    });
  }

  // The text is read-only here, without a cursor; it is edited in the field.
  void selection(int, int* start, int* end) const override { *start = *end = 0; }
  int selectionCount() const override { return 0; }
  void addSelection(int, int) override {}
  void removeSelection(int) override {}
  void setSelection(int, int, int) override {}
  int cursorPosition() const override { return 0; }
  void setCursorPosition(int) override {}
  QString text(int start, int end) const override {
    return Combo().currentText().mid(start, end - start);
  }
  int characterCount() const override { return static_cast<int>(Combo().currentText().size()); }
  QRect characterRect(int) const override { return rect(); }
  int offsetAtPoint(const QPoint&) const override { return -1; }
  void scrollToSubstring(int, int) override {}
  QString attributes(int, int* start, int* end) const override {
    *start = 0;
    *end = characterCount();
    return {};
  }

 private:
  CComboBox& Combo() const { return *static_cast<CComboBox*>(widget()); }
};

/// An entry of a list. Pressing it chooses it.
class EntryInterface final : public QAccessibleInterface, public QAccessibleActionInterface {
 public:
  EntryInterface(CComboBox* combo, int position) : combo_(combo), position_(position) {}

  bool isValid() const override { return combo_ != nullptr && position_ < combo_->count(); }
  QObject* object() const override { return nullptr; }
  QWindow* window() const override { return parent()->window(); }
  QAccessibleInterface* parent() const override {
    return QAccessible::queryAccessibleInterface(combo_->view());
  }
  QAccessibleInterface* child(int) const override { return nullptr; }
  QAccessibleInterface* childAt(int, int) const override { return nullptr; }
  int childCount() const override { return 0; }
  int indexOfChild(const QAccessibleInterface*) const override { return -1; }

  void* interface_cast(QAccessible::InterfaceType type) override {
    return type == QAccessible::ActionInterface ? static_cast<QAccessibleActionInterface*>(this)
                                                : nullptr;
  }
  QAccessible::Role role() const override { return QAccessible::ListItem; }
  QString text(QAccessible::Text kind) const override {
    return kind == QAccessible::Name && isValid() ? combo_->itemText(position_) : QString();
  }
  void setText(QAccessible::Text, const QString&) override {}
  QRect rect() const override {
    if (!isValid() || !combo_->view()->isVisible()) return {};
    const QAbstractItemView* view = combo_->view();
    const QRect entry = view->visualRect(combo_->model()->index(position_, 0));
    return {view->viewport()->mapToGlobal(entry.topLeft()), entry.size()};
  }
  QAccessible::State state() const override {
    QAccessible::State state;
    state.invalid = !isValid();
    if (state.invalid) return state;
    state.selectable = state.focusable = true;
    state.selected = combo_->currentIndex() == position_;
    state.focused = combo_->view()->hasFocus() && combo_->view()->currentIndex().row() == position_;
    state.disabled = !combo_->isEnabled();
    state.offscreen = !combo_->view()->isVisible();
    return state;
  }

  QStringList actionNames() const override { return {pressAction()}; }
  void doAction(const QString& action) override {
    if (!isValid() || action != pressAction()) return;
    ActLikeAUser(combo_.data(), [position = position_](auto& combo) { combo.Pick(position); });
  }
  QStringList keyBindingsForAction(const QString&) const override { return {}; }

 private:
  QPointer<CComboBox> combo_;
  int position_;
};

/// The drop-down of a list, even if it is closed.
class EntriesInterface final : public QAccessibleWidget {
 public:
  EntriesInterface(QWidget* view, CComboBox* combo)
      : QAccessibleWidget(view, QAccessible::List), combo_(combo) {}
  ~EntriesInterface() override {
    for (const QAccessible::Id entry : entries_) QAccessible::deleteAccessibleInterface(entry);
  }

  QAccessibleInterface* parent() const override {
    return QAccessible::queryAccessibleInterface(combo_);
  }
  int childCount() const override { return combo_->count(); }
  QAccessibleInterface* child(int index) const override {
    if (index < 0 || index >= combo_->count()) return nullptr;
    while (std::cmp_less_equal(entries_.size(), index)) {
      entries_.push_back(QAccessible::registerAccessibleInterface(
          new EntryInterface(combo_, static_cast<int>(entries_.size()))));
    }
    return QAccessible::accessibleInterface(entries_[static_cast<std::size_t>(index)]);
  }
  int indexOfChild(const QAccessibleInterface* child) const override {
    const auto entry = std::ranges::find(
        entries_, QAccessible::uniqueId(const_cast<QAccessibleInterface*>(child)));
    return entry == entries_.end() ? -1 : static_cast<int>(entry - entries_.begin());
  }

 private:
  CComboBox* combo_;  // owns the view
  mutable std::vector<QAccessible::Id> entries_;
};

}  // namespace

QAccessibleInterface* MakeAccessibleList(CComboBox& combo) { return new ComboInterface(&combo); }

QAccessibleInterface* MakeAccessibleDropDown(QWidget& view, CComboBox& combo) {
  return new EntriesInterface(&view, &combo);
}

}  // namespace AdvancedControl
