#include "app/desktop/profiles/ProfileActions.h"

#include <algorithm>
#include <utility>

#include <QAction>
#include <QInputDialog>
#include <QMessageBox>
#include <QPushButton>

#include "app/desktop/profiles/MakeAction.h"
#include "app/desktop/profiles/ProfileDocument.h"
#include "app/desktop/profiles/ProfileEditor.h"
#include "app/desktop/profiles/ProfileFileActions.h"
#include "app/desktop/profiles/ProfileHistory.h"
#include "toolkit/Icons.h"

namespace {

constexpr int kNamesShown = 10;

std::size_t Position(int row) { return static_cast<std::size_t>(row); }

}  // namespace

ProfileActions::ProfileActions(ProfileDocument& document, ProfileHistory& history,
                               ProfileFileActions& files, std::function<Positions()> selected,
                               QWidget& window)
    : QObject(&window),
      document_(document),
      history_(history),
      selected_(std::move(selected)),
      window_(window) {
  const auto make = [&](const QString& text, const QKeySequence& keys,
                        void (ProfileActions::*ask)(const Positions& rows)) {
    return MakeAction(*this, text, keys, [this, &files, ask] {
      // A projector that leaves its group during the question is selected no longer.
      files.WhenWritable([this, ask, rows = selected_()] { (this->*ask)(rows); });
    });
  };
  add_ = make(tr("&Add…"), QKeySequence::New, &ProfileActions::AddProjector);
  edit_ = make(tr("&Edit…"), Qt::Key_F2, &ProfileActions::EditProjector);
  duplicate_ = make(tr("&Duplicate…"), Qt::CTRL | Qt::Key_D, &ProfileActions::DuplicateProjector);
  remove_ = make(tr("Re&move…"), QKeySequence::Delete, &ProfileActions::RemoveProjectors);
  tag_ = make(tr("Ta&g…"), Qt::CTRL | Qt::Key_T, &ProfileActions::TagProjectors);
  remove_->setShortcutContext(Qt::WidgetWithChildrenShortcut);  // only while the list has the focus
  Update();
}

void ProfileActions::Update() {
  const bool hasFile = document_.HasFile();
  const std::size_t count = selected_().size();
  add_->setEnabled(hasFile);
  for (QAction* action : {edit_, duplicate_}) action->setEnabled(hasFile && count == 1);
  for (QAction* action : {remove_, tag_}) action->setEnabled(hasFile && count > 0);
}

// A new projector is inserted after the selected one.
void ProfileActions::AddProjector(const Positions& rows) {
  const int after =
      rows.empty() ? static_cast<int>(document_.Projectors().size()) - 1 : rows.back();
  OpenEditor(new ProfileEditor(
      document_, {},
      [this, after](const JsonEdit::Members& members) {
        return history_.Do(tr("Add"), after + 1,
                           [&] { return document_.Insert(Position(after), members); });
      },
      &window_));
}

void ProfileActions::EditProjector(const Positions& rows) {
  const int row = rows.front();
  OpenEditor(new ProfileEditor(
      document_, document_.Entry(Position(row)),
      [this, row](const JsonEdit::Members& members) {
        return history_.Do(tr("Edit"), row,
                           [&] { return document_.Change(Position(row), members); });
      },
      &window_));
}

void ProfileActions::OpenEditor(ProfileEditor* editor) {
  editor->setAttribute(Qt::WA_DeleteOnClose);
  editor->open();
}

// The copy needs an address of its own, which the editor asks for.
void ProfileActions::DuplicateProjector(const Positions& rows) {
  const int row = rows.front();
  const auto& all = document_.Projectors();
  const QString name = QString::fromStdString(all[Position(row)].name);
  QString copy;
  for (int number = 2; copy.isEmpty(); ++number) {
    const QString candidate = QStringLiteral("%1 (%2)").arg(name).arg(number);
    const bool taken =
        std::ranges::find(all, candidate.toStdString(), &FleetProfile::name) != all.end();
    if (!taken) copy = candidate;
  }
  auto* editor = new ProfileEditor(
      document_, document_.Entry(Position(row)),
      [this, row](const JsonEdit::Members& members) {
        return history_.Do(tr("Duplicate"), row + 1,
                           [&] { return document_.Duplicate(Position(row), members); });
      },
      &window_);
  editor->AskForCopy(copy);
  OpenEditor(editor);
}

void ProfileActions::RemoveProjectors(const Positions& rows) {
  QStringList names;
  for (const int row : rows)
    names += QString::fromStdString(document_.Projectors()[Position(row)].name);
  const bool isOne = names.size() == 1;
  auto* question = new QMessageBox(
      QMessageBox::Question, isOne ? tr("Remove Projector") : tr("Remove Projectors"),
      isOne ? tr("Remove \"%1\" from %2?").arg(names.front(), document_.FileName())
            : tr("Remove %n projectors from %1?", nullptr, static_cast<int>(names.size()))
                  .arg(document_.FileName()),
      QMessageBox::NoButton, &window_);
  question->setAttribute(Qt::WA_DeleteOnClose);
  question->setTextFormat(Qt::PlainText);  // the name must not be taken as markup
  if (!isOne) {
    QString text =
        names.first(std::min<qsizetype>(names.size(), kNamesShown)).join(QLatin1Char('\n'));
    if (names.size() > kNamesShown) text += QStringLiteral("\n…");
    question->setInformativeText(text);
  }
  const QPushButton* remove = question->addButton(tr("Remove"), QMessageBox::DestructiveRole);
  question->setDefaultButton(question->addButton(QMessageBox::Cancel));
  connect(question, &QDialog::finished, this, [this, question, remove, rows] {
    if (question->clickedButton() != remove) return;
    const int left = static_cast<int>(document_.Projectors().size() - rows.size());
    const int next = std::min(*std::ranges::min_element(rows), left - 1);
    history_.DoAndReport(tr("Remove"), next, [&] { return document_.Remove(rows); });
  });
  RemoveForeignButtonIcons(*question);
  question->open();
}

void ProfileActions::TagProjectors(const Positions& rows) {
  auto* question = new QInputDialog(&window_);
  question->setAttribute(Qt::WA_DeleteOnClose);
  question->setWindowTitle(tr("Tag"));
  question->setLabelText(tr(
      "Tags for %n projectors, separated by commas;\na minus in front takes a tag away:", nullptr,
      static_cast<int>(rows.size())));
  connect(question, &QInputDialog::textValueSelected, this, [this, rows](const QString& text) {
    QStringList added, removed;
    for (const QString& part : text.split(QLatin1Char(','))) {
      const QString tag = part.trimmed();
      const bool isRemoved = tag.startsWith(QLatin1Char('-'));
      (isRemoved ? removed : added) += isRemoved ? tag.mid(1).trimmed() : tag;
    }
    history_.DoAndReport(tr("Tag"), -1, [&] {
      const QString first = ChangeTags(rows, added, true);
      return first.isEmpty() ? ChangeTags(rows, removed, false) : first;
    });
  });
  question->open();
  RemoveForeignButtonIcons(*question);
}

// What a projector inherits is written into its entry only if its tags change.
QString ProfileActions::ChangeTags(Positions rows, QStringList tags, bool adds) {
  tags.removeAll(QString());
  std::erase_if(rows, [&](int row) {
    const std::vector<std::string>& has = document_.Projectors()[Position(row)].tags;
    return std::ranges::none_of(tags, [&](const QString& tag) {
      return (std::ranges::find(has, tag.toStdString()) == has.end()) == adds;
    });
  });
  return rows.empty() ? QString() : document_.Tag(rows, tags, adds);
}
