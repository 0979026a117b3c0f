#include "toolkit/Accessibility.h"

#include <algorithm>
#include <vector>

#include <QAbstractItemView>
#include <QAccessibleWidget>
#include <QCheckBox>
#include <QLabel>
#include <QLineEdit>
#include <QListView>
#include <QPointer>

#include "toolkit/CComboBox.h"
#include "toolkit/CSliderCtrl.h"
#include "toolkit/CurveView.h"
#include "toolkit/InputDialog.h"
#include "toolkit/WindowText.h"

namespace AdvancedControl {

namespace {

// Acts asynchronously, because a handler may wait for the projector or open a message box, and the
// assistive technology must not wait for that. While a handler runs, actions are dropped, as other
// input is.
template <class Control, class Act>
void ActLikeAUser(Control* control, Act act) {
  const auto actUnlessBusy = [control, act] {
    const auto* dialog = qobject_cast<const InputDialog*>(control->window());
    if (control->isEnabled() && (dialog == nullptr || !dialog->IsBusy())) act(*control);
  };
  QMetaObject::invokeMethod(control, actUnlessBusy, Qt::QueuedConnection);
}

class SliderInterface final : public QAccessibleWidget, public QAccessibleValueInterface {
 public:
  explicit SliderInterface(CSliderCtrl* slider) : QAccessibleWidget(slider, QAccessible::Slider) {}

  void* interface_cast(QAccessible::InterfaceType type) override {
    if (type == QAccessible::ValueInterface) return static_cast<QAccessibleValueInterface*>(this);
    return QAccessibleWidget::interface_cast(type);
  }

  QString text(QAccessible::Text kind) const override {
    return kind == QAccessible::Value ? QString::number(Slider().value())
                                      : QAccessibleWidget::text(kind);
  }

  QVariant currentValue() const override { return Slider().value(); }
  void setCurrentValue(const QVariant& value) override {
    ActLikeAUser(&Slider(), [position = qRound(value.toDouble())](auto& slider) {
      slider.ScrollTo(position);
    });
  }
  QVariant maximumValue() const override { return Slider().maximum(); }
  QVariant minimumValue() const override { return Slider().minimum(); }
  QVariant minimumStepSize() const override { return Slider().singleStep(); }

 private:
  CSliderCtrl& Slider() const { return *static_cast<CSliderCtrl*>(widget()); }
};

/// Toggling a check box clicks it, because it reports only clicks.
class CheckInterface final : public QAccessibleWidget {
 public:
  explicit CheckInterface(QCheckBox* check) : QAccessibleWidget(check, QAccessible::CheckBox) {}

  QAccessible::State state() const override {
    QAccessible::State state = QAccessibleWidget::state();
    state.checkable = true;
    state.checked = Check().isChecked();
    return state;
  }
  QStringList actionNames() const override {
    return QStringList{toggleAction()} + QAccessibleWidget::actionNames();
  }
  void doAction(const QString& action) override {
    if (action != toggleAction()) return QAccessibleWidget::doAction(action);
    ActLikeAUser(&Check(), [](QCheckBox& check) { check.click(); });
  }

 private:
  QCheckBox& Check() const { return *static_cast<QCheckBox*>(widget()); }
};

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

/// A window; or a page, as the panel of its tab.
class DialogInterface final : public QAccessibleWidget {
 public:
  explicit DialogInterface(QWidget* dialog) : QAccessibleWidget(dialog, QAccessible::Dialog) {}

  QAccessible::Role role() const override {
    return widget()->isWindow() ? QAccessible::Dialog : QAccessible::Pane;
  }
  int childCount() const override { return static_cast<int>(Children().size()); }
  QAccessibleInterface* child(int index) const override {
    return QAccessible::queryAccessibleInterface(Children().value(index));
  }
  int indexOfChild(const QAccessibleInterface* child) const override {
    return static_cast<int>(Children().indexOf(child->object()));
  }

 private:
  // All children except the colons after captions.
  QObjectList Children() const {
    QObjectList children;
    for (QObject* child : widget()->children()) {
      if (!child->isWidgetType() || static_cast<QWidget*>(child)->isWindow()) continue;
      const auto* label = qobject_cast<const QLabel*>(child);
      if (label == nullptr || label->text() != QLatin1String(":")) children.append(child);
    }
    return children;
  }
};

QAccessibleInterface* MakeInterface(const QString& className, QObject* object) {
  const auto isClass = [&](const QMetaObject& meta) {
    return className == QLatin1String(meta.className());
  };
  if (isClass(CSliderCtrl::staticMetaObject)) {
    return new SliderInterface(static_cast<CSliderCtrl*>(object));
  }
  if (isClass(CComboBox::staticMetaObject)) {
    return new ComboInterface(static_cast<CComboBox*>(object));
  }
  if (isClass(QCheckBox::staticMetaObject) && qobject_cast<TemplateDialog*>(object->parent())) {
    return new CheckInterface(static_cast<QCheckBox*>(object));
  }
  if (isClass(CurveView::staticMetaObject)) {
    return new QAccessibleWidget(static_cast<QWidget*>(object), QAccessible::Graphic);
  }
  if (isClass(TemplateDialog::staticMetaObject)) {
    return new DialogInterface(static_cast<QWidget*>(object));
  }
  if (isClass(QListView::staticMetaObject) && object->parent() != nullptr) {
    // A drop-down is in a frame, whose parent is the list.
    if (auto* combo = qobject_cast<CComboBox*>(object->parent()->parent())) {
      return new EntriesInterface(static_cast<QWidget*>(object), combo);
    }
  }
  return nullptr;
}

// A caption for screen readers, without the tabs and the colon of a template's text.
QString SpokenCaption(const QString& caption) {
  QString spoken = caption.simplified();
  while (spoken.endsWith(QLatin1Char(':'))) spoken.chop(1);
  return spoken.trimmed();
}

bool IsText(ControlKind kind) {
  return kind == ControlKind::Label || kind == ControlKind::Colon || kind == ControlKind::Text;
}

// The control that a row's caption labels.
QWidget* ValueOf(const TemplateDialog& dialog, const RowTemplate& row) {
  const auto find = [&](auto matches) -> QWidget* {
    const auto found = std::ranges::find_if(row.controls, matches, &ControlTemplate::kind);
    return found == row.controls.end() ? nullptr : dialog.GetDlgItem(found->id);
  };
  QWidget* operated = find([](ControlKind kind) {
    return kind != ControlKind::None && kind != ControlKind::Minus && !IsText(kind);
  });
  return operated != nullptr ? operated
                             : find([](ControlKind kind) { return kind == ControlKind::Text; });
}

}  // namespace

void InstallAccessibility() {
  static const struct Factory {
    Factory() { QAccessible::installFactory(&MakeInterface); }
    ~Factory() { QAccessible::removeFactory(&MakeInterface); }
  } factory;
}

void NameControls(const TemplateDialog& dialog) {
  QString caption;
  for (const RowTemplate& row : dialog.Template()->rows) {
    // A row without a caption continues the one above; "V" and "H" distinguish the parts of a row.
    QString part;
    for (const auto& [kind, id, text, entries] : row.controls) {
      if (kind == ControlKind::None) break;
      QWidget* control = dialog.GetDlgItem(id);
      // A button with a picture instead of a text already has a name.
      const QString shown = WindowText(*control);
      const QString own = SpokenCaption(shown.isEmpty() ? control->accessibleName() : shown);
      if (kind == ControlKind::Label) {
        caption = own;
        control->setAccessibleName(own);
        static_cast<QLabel*>(control)->setBuddy(ValueOf(dialog, row));
      } else if (kind == ControlKind::Text) {
        part = own;
        control->setAccessibleDescription(caption);
      } else if (kind != ControlKind::Colon && kind != ControlKind::Tab &&
                 kind != ControlKind::Close) {
        control->setAccessibleName(
            QStringList{caption, part, own}.join(QLatin1Char(' ')).simplified());
      }
    }
  }
}

}  // namespace AdvancedControl
