#include "app/desktop/presets/PresetManager.h"

#include <algorithm>
#include <utility>

#include <QAction>
#include <QDialogButtonBox>
#include <QLabel>
#include <QListWidget>
#include <QMessageBox>
#include <QPushButton>
#include <QScreen>
#include <QSignalBlocker>
#include <QSplitter>
#include <QTreeWidget>
#include <QVBoxLayout>

#include "app/desktop/Modal.h"
#include "app/desktop/presets/PresetTree.h"
#include "app/profiles/PresetFolder.h"
#include "toolkit/Icons.h"
#include "toolkit/IsolatedText.h"

namespace {

constexpr QSize kUsualSize{113, 37};  // in average characters and lines
constexpr QSize kFrame{10, 40};       // a guess until it is shown
constexpr qsizetype kNamesShown = 5;

/// The first names, and dots if there are more.
QString Shortened(const QStringList& names, const QString& separator) {
  const QString text = names.first(std::min(names.size(), kNamesShown)).join(separator);
  return names.size() > kNamesShown ? text + separator + QStringLiteral("…") : text;
}

}  // namespace

PresetManager::PresetManager(Parts parts, QWidget* parent)
    : QDialog(parent),
      parts_(std::move(parts)),
      list_(new QListWidget),
      users_(new QLabel),
      tree_(new QTreeWidget) {
  setWindowTitle(tr("Presets"));
  MakeLayout();
  connect(list_, &QListWidget::currentRowChanged, this, &PresetManager::ShowCurrent);
  connect(list_, &QListWidget::itemChanged, this,
          [this](QListWidgetItem* item) { TakeName(*item); });
  connect(rename_, &QPushButton::clicked, this, [this] { list_->editItem(list_->currentItem()); });
  connect(remove_, &QPushButton::clicked, this, &PresetManager::AskToRemove);
  auto* remove = new QAction(list_);
  remove->setShortcut(QKeySequence::Delete);
  remove->setShortcutContext(Qt::WidgetShortcut);
  list_->addAction(remove);
  connect(remove, &QAction::triggered, this, &PresetManager::AskToRemove);
  Fill();
  list_->setFocus();
}

void PresetManager::MakeLayout() {
  list_->setAccessibleName(tr("Presets"));
  list_->setEditTriggers(QListWidget::EditKeyPressed | QListWidget::DoubleClicked);
  users_->setTextFormat(Qt::PlainText);
  users_->setWordWrap(true);
  tree_->setHeaderLabels({tr("Setting"), tr("Value")});
  tree_->setUniformRowHeights(true);
  tree_->setItemDelegate(new IsolatedTexts(tree_));
  tree_->setAccessibleName(tr("Settings of the preset"));

  auto* sides = new QSplitter;
  sides->addWidget(list_);
  sides->addWidget(tree_);
  sides->setStretchFactor(1, 1);
  sides->setChildrenCollapsible(false);
  auto* buttons = new QDialogButtonBox(QDialogButtonBox::Close);
  rename_ = buttons->addButton(tr("Re&name"), QDialogButtonBox::ActionRole);
  remove_ = buttons->addButton(tr("&Remove"), QDialogButtonBox::ActionRole);
  connect(buttons, &QDialogButtonBox::rejected, this, &QDialog::reject);
  auto* layout = new QVBoxLayout(this);
  layout->addWidget(sides, 1);
  layout->addWidget(users_);
  layout->addWidget(buttons);
  RemoveForeignButtonIcons(*this);
  const QFontMetrics letters = fontMetrics();
  const QSize usual(kUsualSize.width() * letters.averageCharWidth(),
                    kUsualSize.height() * letters.height());
  resize(usual.boundedTo(screen()->availableGeometry().size() - kFrame));
}

void PresetManager::Fill() {
  const QString before = Current();
  const int row = list_->currentRow();
  {
    const QSignalBlocker quiet(list_);
    list_->clear();
    for (const QString& name : PresetFolder::Names()) {
      auto* item = new QListWidgetItem(name, list_);
      item->setFlags(item->flags() | Qt::ItemIsEditable);
      item->setData(Qt::UserRole, name);  // while another one is typed
    }
    const auto same = list_->findItems(before, Qt::MatchExactly | Qt::MatchCaseSensitive);
    list_->setCurrentRow(same.isEmpty() ? std::clamp(row, 0, std::max(0, list_->count() - 1))
                                        : list_->row(same.front()));
  }
  ShowCurrent();
}

QString PresetManager::Current() const {
  const QListWidgetItem* item = list_->currentItem();
  return item == nullptr ? QString() : item->data(Qt::UserRole).toString();
}

void PresetManager::ShowCurrent() {
  const QString name = Current();
  rename_->setEnabled(!name.isEmpty());
  remove_->setEnabled(!name.isEmpty());
  tree_->clear();
  users_->clear();
  if (name.isEmpty()) return users_->setText(tr("No presets yet"));
  const PresetFolder::Contents preset = PresetFolder::Read(name);
  if (!preset.snapshot) return users_->setText(preset.error);
  FillPresetTree(*tree_, *preset.snapshot, parts_.model(*preset.snapshot), parts_.texts);
  if (const QStringList users = parts_.users(name); !users.isEmpty())
    users_->setText(tr("Should be like it: %1").arg(Shortened(users, QStringLiteral(", "))));
}

void PresetManager::TakeName(QListWidgetItem& item) {
  const QString from = item.data(Qt::UserRole).toString();
  const QString to = item.text().trimmed();
  const auto reset = [&] {
    const QSignalBlocker quiet(list_);
    item.setText(from);
  };
  if (to == from) return reset();
  QString error;
  if (!PresetFolder::IsName(to)) {
    error = tr("This name is not allowed: no slashes, and no dot in front.");
  } else if (PresetFolder::Names().contains(to)) {
    error = tr("There is already a preset %1.").arg(to);
  } else {
    item.setData(Qt::UserRole, to);  // stays the current one
    error = parts_.rename(from, to);
    if (!error.isEmpty()) item.setData(Qt::UserRole, from);
  }
  if (error.isEmpty()) return;
  reset();
  ShowError(*this, windowTitle(), error);
}

void PresetManager::AskToRemove() {
  const QString name = Current();
  if (name.isEmpty()) return;
  const QStringList users = parts_.users(name);
  auto* question =
      new QMessageBox(QMessageBox::Question, windowTitle(), tr("Remove the preset %1?").arg(name),
                      QMessageBox::NoButton, this);
  question->setAttribute(Qt::WA_DeleteOnClose);
  question->setTextFormat(Qt::PlainText);  // the name must not be taken as markup
  if (!users.isEmpty())
    question->setInformativeText(tr("Should be like it: %1").arg(Shortened(users, "\n")));
  const QPushButton* remove = question->addButton(tr("Remove"), QMessageBox::DestructiveRole);
  question->setDefaultButton(question->addButton(QMessageBox::Cancel));
  connect(question, &QDialog::finished, this, [this, question, remove, name] {
    if (question->clickedButton() != remove) return;
    const QString error = parts_.remove(name);
    if (!error.isEmpty()) ShowError(*this, windowTitle(), error);
  });
  RemoveForeignButtonIcons(*question);
  question->open();
}
