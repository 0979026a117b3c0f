#include "toolkit/Accessibility.h"

#include <algorithm>

#include <QAccessibleWidget>
#include <QCheckBox>
#include <QLabel>
#include <QListView>

#include "toolkit/AccessibleActions.h"
#include "toolkit/AccessibleLists.h"
#include "toolkit/AnnouncedLabel.h"
#include "toolkit/CComboBox.h"
#include "toolkit/CSliderCtrl.h"
#include "toolkit/CurveView.h"
#include "toolkit/TemplateDialog.h"
#include "toolkit/WindowText.h"

namespace AdvancedControl {

namespace {

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

class NotificationInterface final : public QAccessibleWidget {
 public:
  explicit NotificationInterface(AnnouncedLabel* label)
      : QAccessibleWidget(label, QAccessible::Notification) {}

  QString text(QAccessible::Text kind) const override {
    return kind == QAccessible::Name ? static_cast<QLabel*>(widget())->text()
                                     : QAccessibleWidget::text(kind);
  }
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
    return MakeAccessibleList(static_cast<CComboBox&>(*object));
  }
  if (isClass(QCheckBox::staticMetaObject) && qobject_cast<TemplateDialog*>(object->parent())) {
    return new CheckInterface(static_cast<QCheckBox*>(object));
  }
  if (isClass(AnnouncedLabel::staticMetaObject)) {
    return new NotificationInterface(static_cast<AnnouncedLabel*>(object));
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
      return MakeAccessibleDropDown(static_cast<QWidget&>(*object), *combo);
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
    for (const auto& [kind, id, text, entries] : row.Present()) {
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
