#include "app/desktop/profiles/ProfileActions.h"

#include <algorithm>
#include <utility>

#include <QAction>
#include <QInputDialog>
#include <QMessageBox>
#include <QPushButton>
#include <QUndoCommand>
#include <QUndoStack>

#include "app/desktop/Modal.h"
#include "app/desktop/profiles/ProfileDocument.h"
#include "app/desktop/profiles/ProfileEditor.h"
#include "toolkit/Icons.h"

namespace {

constexpr int kMostUndone = 50;
constexpr int kNamesShown = 10;

std::size_t Position(int row) { return static_cast<std::size_t>(row); }

}  // namespace

/// The text of the file before and after an edit.
class ProfileActions::TextEdit : public QUndoCommand {
 public:
  TextEdit(ProfileActions& actions, const QString& title, QByteArray before, QByteArray after)
      : QUndoCommand(title),
        actions_(actions),
        before_(std::move(before)),
        after_(std::move(after)) {}

  void undo() override { Put(before_); }
  void redo() override {
    if (std::exchange(isDone_, true)) Put(after_);
  }

 private:
  // What cannot be written is not tried again.
  void Put(const QByteArray& text) {
    const QString error = actions_.document_.Write(text);
    setObsolete(!error.isEmpty());
    actions_.ReportResult(this->text(), error, -1);
  }

  ProfileActions& actions_;
  const QByteArray before_;
  const QByteArray after_;
  bool isDone_ = false;
};

ProfileActions::ProfileActions(ProfileDocument& document, std::function<Positions()> selected,
                               QWidget& window)
    : QObject(&window),
      document_(document),
      selected_(std::move(selected)),
      window_(window),
      undone_(new QUndoStack(this)),
      open_(MakeAction(tr("&Open Profiles…"), QKeySequence::Open, &ProfileActions::OpenFile)),
      reload_(MakeAction(tr("&Reload"), QKeySequence::Refresh, &ProfileActions::ReloadFile)),
      saveAs_(MakeAction(tr("&Save Profiles As…"), Qt::CTRL | Qt::SHIFT | Qt::Key_S,
                         &ProfileActions::SaveFileAs)),
      undo_(undone_->createUndoAction(this, tr("&Undo"))),
      redo_(undone_->createRedoAction(this, tr("&Redo"))),
      add_(MakeAction(tr("&Add…"), QKeySequence::New, &ProfileActions::AddProjector)),
      edit_(MakeAction(tr("&Edit…"), Qt::Key_F2, &ProfileActions::EditProjector)),
      duplicate_(
          MakeAction(tr("&Duplicate…"), Qt::CTRL | Qt::Key_D, &ProfileActions::DuplicateProjector)),
      remove_(MakeAction(tr("&Remove…"), QKeySequence::Delete, &ProfileActions::RemoveProjectors)),
      tag_(MakeAction(tr("Ta&g…"), Qt::CTRL | Qt::Key_T, &ProfileActions::TagProjectors)) {
  undone_->setUndoLimit(kMostUndone);
  undo_->setShortcut(QKeySequence::Undo);
  redo_->setShortcut(QKeySequence::Redo);
  remove_->setShortcutContext(Qt::WidgetWithChildrenShortcut);  // only while the list has the focus
  Update();
}

QAction* ProfileActions::MakeAction(const QString& text, const QKeySequence& keys,
                                    void (ProfileActions::*act)()) {
  auto* action = new QAction(text, this);
  action->setShortcut(keys);
  connect(action, &QAction::triggered, this, [this, action, act] {
    if (action->isEnabled()) (this->*act)();
  });
  return action;
}

void ProfileActions::Update() {
  const bool hasFile = document_.HasFile();
  const std::size_t count = selected_().size();
  for (QAction* action : {reload_, saveAs_, add_}) action->setEnabled(hasFile);
  for (QAction* action : {edit_, duplicate_}) action->setEnabled(hasFile && count == 1);
  for (QAction* action : {remove_, tag_}) action->setEnabled(hasFile && count > 0);
}

void ProfileActions::ReportResult(const QString& title, const QString& error, int selected) {
  if (error.isEmpty()) {
    Q_EMIT Changed(selected);
  } else {
    ShowError(window_, title, tr("This could not be done; nothing was changed."), error);
  }
}

QString ProfileActions::Do(const QString& title, int selected,
                           const std::function<QString()>& edit) {
  const QByteArray before = document_.Text();
  const QString error = edit();
  if (error.isEmpty() && before != document_.Text())
    undone_->push(new TextEdit(*this, title, before, document_.Text()));
  if (error.isEmpty()) Q_EMIT Changed(selected);
  return error;
}

// What was done to another text cannot be undone.
void ProfileActions::OpenFile() {
  AskForFile(window_,
             {.kind = FileQuestion::Kind::Open,
              .title = tr("Open Profiles"),
              .suggestion = document_.FileName(),
              .filter = tr("Profiles (*.json);;All files (*)")},
             [this](const QString& path) {
               const QString error = document_.Load(path);
               if (error.isEmpty()) undone_->clear();
               ReportResult(tr("Open Profiles"), error, -1);
             });
}

void ProfileActions::ReloadFile() {
  const QByteArray before = document_.Text();
  const QString error = document_.Load(document_.FileName());
  if (before != document_.Text()) undone_->clear();
  ReportResult(tr("Reload"), error, -1);
}

void ProfileActions::SaveFileAs() {
  AskForFile(window_,
             {.kind = FileQuestion::Kind::Save,
              .title = tr("Save Profiles As"),
              .suggestion = document_.FileName(),
              .filter = tr("Profiles (*.json);;All files (*)")},
             [this](const QString& path) {
               ReportResult(tr("Save Profiles As"), document_.SaveAs(path), -1);
             });
}

// A new projector is inserted after the selected one.
void ProfileActions::AddProjector() {
  const Positions selected = selected_();
  const int after =
      selected.empty() ? static_cast<int>(document_.Projectors().size()) - 1 : selected.back();
  OpenEditor(new ProfileEditor(
      document_, {},
      [this, after](const JsonEdit::Members& members) {
        return Do(tr("Add"), after + 1, [&] { return document_.Insert(Position(after), members); });
      },
      &window_));
}

void ProfileActions::EditProjector() {
  const int row = selected_().front();
  OpenEditor(new ProfileEditor(
      document_, document_.Entry(Position(row)),
      [this, row](const JsonEdit::Members& members) {
        return Do(tr("Edit"), row, [&] { return document_.Change(Position(row), members); });
      },
      &window_));
}

void ProfileActions::OpenEditor(ProfileEditor* editor) {
  editor->setAttribute(Qt::WA_DeleteOnClose);
  connect(editor, &ProfileEditor::SaveAsWanted, this, &ProfileActions::SaveFileAs);
  editor->open();
}

// The copy needs an address of its own, which the editor asks for.
void ProfileActions::DuplicateProjector() {
  const int row = selected_().front();
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
        return Do(tr("Duplicate"), row + 1,
                  [&] { return document_.Duplicate(Position(row), members); });
      },
      &window_);
  editor->AskForCopy(copy);
  OpenEditor(editor);
}

void ProfileActions::RemoveProjectors() {
  const Positions rows = selected_();
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
    const QString error = Do(tr("Remove"), next, [&] { return document_.Remove(rows); });
    if (!error.isEmpty()) ReportResult(tr("Remove"), error, -1);
  });
  RemoveForeignButtonIcons(*question);
  question->open();
}

void ProfileActions::TagProjectors() {
  const Positions rows = selected_();
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
      if (!tag.isEmpty()) (isRemoved ? removed : added) += isRemoved ? tag.mid(1).trimmed() : tag;
    }
    const QString error = Do(tr("Tag"), -1, [&] {
      const QString first = document_.Tag(rows, added, true);
      return first.isEmpty() && !removed.isEmpty() ? document_.Tag(rows, removed, false) : first;
    });
    if (!error.isEmpty()) ReportResult(tr("Tag"), error, -1);
  });
  question->open();
  RemoveForeignButtonIcons(*question);
}
