#include "bench/PlainDialog.h"

#include <QAbstractButton>
#include <QCheckBox>
#include <QComboBox>
#include <QGridLayout>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QSlider>
#include <QStyle>
#include <QTabBar>
#include <QTabWidget>
#include <QToolButton>

#include "pages/common/CTabPage.h"
#include "toolkit/WindowText.h"

namespace {

constexpr int kCloseId = 1;

using Control = PlainBlueprint::Control;

Control Describe(ControlKind kind, const QWidget& widget) {
  Control control{.kind = kind,
                  .text = WindowText(widget),
                  .enabled = widget.isEnabled(),
                  .hidden = widget.isHidden()};
  if (const auto* combo = qobject_cast<const QComboBox*>(&widget)) {
    for (int i = 0; i < combo->count(); ++i) control.entries << combo->itemText(i);
    control.value = combo->currentIndex();
  } else if (const auto* slider = qobject_cast<const QSlider*>(&widget)) {
    control.minimum = slider->minimum();
    control.maximum = slider->maximum();
    control.value = slider->value();
  } else if (const auto* field = qobject_cast<const QLineEdit*>(&widget)) {
    control.text = field->text();
  }
  return control;
}

PlainBlueprint::Page Describe(const CTabPage& page) {
  PlainBlueprint::Page described;
  for (const RowTemplate& row : page.Template()->rows) {
    auto& added = described.rows.emplace_back(PlainBlueprint::Row{.place = row.place});
    for (const ControlTemplate& control : row.controls) {
      if (control.kind == ControlKind::None) break;
      added.controls.push_back(Describe(control.kind, *page.GetDlgItem(control.id)));
    }
  }
  return described;
}

QWidget* Make(const Control& control) {
  switch (control.kind) {
    case ControlKind::Label:
    case ControlKind::Colon:
    case ControlKind::Text:
      return new QLabel(control.text);
    case ControlKind::Slider: {
      auto* slider = new QSlider(Qt::Horizontal);
      slider->setRange(control.minimum, control.maximum);
      slider->setTickPosition(QSlider::TicksBelow);
      slider->setValue(control.value);
      return slider;
    }
    case ControlKind::Field: {
      auto* field = new QLineEdit(control.text);
      field->setReadOnly(true);
      field->setMaximumWidth(80);
      return field;
    }
    case ControlKind::Combo: {
      auto* combo = new QComboBox;
      combo->addItems(control.entries);
      combo->setCurrentIndex(control.value);
      return combo;
    }
    case ControlKind::Minus:
    case ControlKind::Plus:
    case ControlKind::Arrow: {
      auto* button = new QPushButton(control.text);
      button->setMaximumWidth(32);
      return button;
    }
    case ControlKind::Check:
      return new QCheckBox(control.text);
    default:
      return new QPushButton(control.text);
  }
}

QWidget* MakePage(const PlainBlueprint::Page& described) {
  auto* page = new QWidget;
  auto* columns = new QHBoxLayout(page);
  QGridLayout* left = new QGridLayout;
  QGridLayout* right = nullptr;
  columns->addLayout(left, 1);
  int leftRow = 0;
  int rightRow = 0;
  for (const auto& row : described.rows) {
    if (row.place == RowPlace::Right && right == nullptr) {
      columns->addLayout(right = new QGridLayout, 1);
    }
    const bool isRight = row.place == RowPlace::Right;
    int column = 0;
    for (const Control& control : row.controls) {
      QWidget* widget = Make(control);
      if (!control.enabled) widget->setEnabled(false);
      (isRight ? right : left)->addWidget(widget, isRight ? rightRow : leftRow, column++);
      if (control.hidden) widget->hide();
    }
    ++(isRight ? rightRow : leftRow);
  }
  left->setRowStretch(leftRow, 1);
  if (right != nullptr) right->setRowStretch(rightRow, 1);
  return page;
}

}  // namespace

PlainBlueprint BlueprintOf(CAdvanceDlg& dialog) {
  PlainBlueprint blueprint{.title = dialog.windowTitle(), .size = dialog.size()};
  const auto* tabs = dialog.findChild<QTabBar*>();
  for (int i = 0; i < tabs->count(); ++i) blueprint.tabs << tabs->tabText(i);
  blueprint.closeText = WindowText(*dialog.GetDlgItem(kCloseId));
  blueprint.pages.push_back(Describe(dialog.Page(PageId::Status)));
  for (const PageId page : PagesOf(dialog.Model().DialogType)) {
    blueprint.pages.push_back(Describe(dialog.Page(page)));
  }
  return blueprint;
}

std::unique_ptr<QDialog> MakePlainDialog(const PlainBlueprint& blueprint, bool framed) {
  auto dialog = std::make_unique<QDialog>();
  dialog->setWindowTitle(blueprint.title);
  auto* layout = new QVBoxLayout(dialog.get());
  auto* tabs = new QTabWidget;
  tabs->setDocumentMode(!framed);
  for (qsizetype i = 0; i < std::ssize(blueprint.pages); ++i) {
    QWidget* page = MakePage(blueprint.pages[static_cast<std::size_t>(i)]);
    if (i < blueprint.tabs.size()) {
      tabs->addTab(page, blueprint.tabs[i]);
    } else {
      page->setParent(tabs);
      page->hide();
    }
  }
  layout->addWidget(tabs);
  auto* bottom = new QHBoxLayout;
  layout->addLayout(bottom);
  bottom->addWidget(new QLabel);  // the status text; its button is made only when needed
  auto* top = new QHBoxLayout;
  for (const char* text : {"the projector", "when it was read"}) top->addWidget(new QLabel(text));
  auto* again = new QToolButton;
  again->setIcon(dialog->style()->standardIcon(QStyle::SP_BrowserReload));
  top->addWidget(again);
  layout->insertLayout(0, top);
  auto* retry = new QPushButton;
  bottom->addWidget(retry);
  retry->hide();
  bottom->addStretch(1);
  bottom->addWidget(new QPushButton(blueprint.closeText));
  dialog->resize(blueprint.size);
  return dialog;
}

std::vector<qsizetype> WidgetCounts(const QWidget& dialog) {
  return {dialog.findChildren<QLabel*>().size(),    dialog.findChildren<QComboBox*>().size(),
          dialog.findChildren<QSlider*>().size(),   dialog.findChildren<QPushButton*>().size(),
          dialog.findChildren<QLineEdit*>().size(), dialog.findChildren<QCheckBox*>().size(),
          dialog.findChildren<QTabBar*>().size(),   dialog.findChildren<QToolButton*>().size()};
}
