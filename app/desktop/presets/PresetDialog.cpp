#include "app/desktop/presets/PresetDialog.h"

#include <utility>

#include <QDialogButtonBox>
#include <QFormLayout>
#include <QHBoxLayout>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QScreen>
#include <QSignalBlocker>
#include <QTreeWidget>
#include <QVBoxLayout>

#include "app/desktop/presets/PresetTree.h"
#include "app/profiles/PresetFolder.h"
#include "toolkit/Icons.h"
#include "toolkit/IsolatedText.h"

namespace {

constexpr QSize kUsualSize{87, 40};  // in average characters and lines
constexpr QSize kFrame{10, 40};      // a guess until it is shown

}  // namespace

PresetDialog::PresetDialog(std::shared_ptr<const Snapshot> taken, const ModelSettings& model,
                           const SettingTexts& texts, QWidget* parent)
    : QDialog(parent),
      taken_(std::move(taken)),
      name_(new QLineEdit),
      tree_(new QTreeWidget),
      remark_(new QLabel) {
  setWindowTitle(tr("Save as Preset"));
  MakeLayout();
  Fill(model, texts);
  connect(name_, &QLineEdit::textChanged, this, &PresetDialog::Update);
  connect(tree_, &QTreeWidget::itemChanged, this, &PresetDialog::Update);
  Update();
}

void PresetDialog::MakeLayout() {
  tree_->setHeaderLabels({tr("Setting"), tr("Value")});
  tree_->setUniformRowHeights(true);
  tree_->setItemDelegate(new IsolatedTexts(tree_));
  tree_->setAccessibleName(tr("Settings of the preset"));
  remark_->setTextFormat(Qt::PlainText);
  remark_->setWordWrap(true);
  auto* form = new QFormLayout;
  form->addRow(tr("&Name of the preset"), name_);

  auto* quick = new QHBoxLayout;
  const auto add = [&](const QString& text, const QString& tip, auto isChecked) {
    auto* button = new QPushButton(text);
    button->setToolTip(tip);
    button->setAutoDefault(false);
    connect(button, &QPushButton::clicked, this, [this, isChecked] { CheckPages(isChecked); });
    quick->addWidget(button);
  };
  add(tr("&All"), tr("Check all settings"), [](const QTreeWidgetItem*) { return true; });
  add(tr("This &Page"), tr("Check the settings of the selected page, and no others"),
      [this](const QTreeWidgetItem* page) {
        const QTreeWidgetItem* current = tree_->currentItem();
        return current == page || (current != nullptr && current->parent() == page);
      });
  add(tr("N&one"), tr("Uncheck all settings"), [](const QTreeWidgetItem*) { return false; });
  quick->addStretch();

  auto* buttons = new QDialogButtonBox(QDialogButtonBox::Cancel);
  save_ = buttons->addButton(tr("&Save"), QDialogButtonBox::AcceptRole);
  connect(buttons, &QDialogButtonBox::accepted, this, &QDialog::accept);
  connect(buttons, &QDialogButtonBox::rejected, this, &QDialog::reject);
  auto* layout = new QVBoxLayout(this);
  layout->addLayout(form);
  layout->addLayout(quick);
  layout->addWidget(tree_, 1);
  layout->addWidget(remark_);
  layout->addWidget(buttons);
  save_->setDefault(true);  // only now that the dialog knows the button
  RemoveForeignButtonIcons(*this);
  const QFontMetrics letters = fontMetrics();
  const QSize usual(kUsualSize.width() * letters.averageCharWidth(),
                    kUsualSize.height() * letters.height());
  resize(usual.boundedTo(screen()->availableGeometry().size() - kFrame));
  name_->setFocus();
}

void PresetDialog::Fill(const ModelSettings& model, const SettingTexts& texts) {
  FillPresetTree(*tree_, *taken_, model, texts);
  for (int i = 0; i < tree_->topLevelItemCount(); ++i) {
    QTreeWidgetItem* page = tree_->topLevelItem(i);
    page->setFlags(page->flags() | Qt::ItemIsAutoTristate);
    for (int j = 0; j < page->childCount(); ++j) page->child(j)->setCheckState(0, Qt::Checked);
  }
  tree_->resizeColumnToContents(0);  // the check boxes need room, too
}

void PresetDialog::CheckPages(const std::function<bool(const QTreeWidgetItem*)>& isChecked) {
  const QSignalBlocker quiet(tree_);
  for (int i = 0; i < tree_->topLevelItemCount(); ++i) {
    QTreeWidgetItem* page = tree_->topLevelItem(i);
    page->setCheckState(0, isChecked(page) ? Qt::Checked : Qt::Unchecked);
  }
  Update();
}

void PresetDialog::Update() {
  const QString name = Name();
  const std::size_t count = Chosen().settings.size();
  const bool isTaken = PresetFolder::Names().contains(name);
  save_->setEnabled(PresetFolder::IsName(name) && count > 0);
  if (!name.isEmpty() && !PresetFolder::IsName(name)) {
    remark_->setText(tr("This name is not allowed: no slashes, and no dot in front."));
  } else {
    const QString settings = tr("%n settings are checked.", nullptr, static_cast<int>(count));
    remark_->setText(isTaken ? settings + QLatin1Char(' ') +
                                   tr("The preset %1 will be replaced.").arg(name)
                             : settings);
  }
}

QString PresetDialog::Name() const { return name_->text().trimmed(); }

Snapshot PresetDialog::Chosen() const {
  Snapshot chosen = *taken_;
  chosen.settings.clear();
  for (int i = 0; i < tree_->topLevelItemCount(); ++i) {
    const QTreeWidgetItem* page = tree_->topLevelItem(i);
    for (int j = 0; j < page->childCount(); ++j) {
      const QTreeWidgetItem* leaf = page->child(j);
      if (leaf->checkState(0) != Qt::Checked) continue;
      const auto place = static_cast<std::size_t>(leaf->data(0, kPlaceRole).toInt());
      chosen.settings.push_back(taken_->settings[place]);
    }
  }
  return chosen;
}
