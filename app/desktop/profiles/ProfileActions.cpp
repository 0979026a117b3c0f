#include "app/desktop/profiles/ProfileActions.h"

#include <algorithm>
#include <utility>

#include <QAction>
#include <QMessageBox>
#include <QPushButton>

#include "app/desktop/Modal.h"
#include "app/desktop/profiles/ProfileDocument.h"
#include "app/desktop/profiles/ProfileEditor.h"

namespace {

std::size_t Position(int row) { return static_cast<std::size_t>(row); }

}  // namespace

ProfileActions::ProfileActions(ProfileDocument& document, std::function<int()> current,
                               QWidget& window)
    : QObject(&window),
      document_(document),
      current_(std::move(current)),
      window_(window),
      open_(MakeAction(tr("&Open Profiles…"), QKeySequence::Open, &ProfileActions::OpenFile)),
      reload_(MakeAction(tr("&Reload"), QKeySequence::Refresh, &ProfileActions::ReloadFile)),
      saveAs_(MakeAction(tr("&Save Profiles As…"), Qt::CTRL | Qt::SHIFT | Qt::Key_S,
                         &ProfileActions::SaveFileAs)),
      add_(MakeAction(tr("&Add…"), QKeySequence::New, &ProfileActions::AddProjector)),
      edit_(MakeAction(tr("&Edit…"), Qt::Key_F2, &ProfileActions::EditProjector)),
      duplicate_(
          MakeAction(tr("&Duplicate"), Qt::CTRL | Qt::Key_D, &ProfileActions::DuplicateProjector)),
      remove_(MakeAction(tr("&Remove"), QKeySequence::Delete, &ProfileActions::RemoveProjector)) {
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
  for (QAction* action : {reload_, saveAs_, add_}) action->setEnabled(hasFile);
  for (QAction* action : {edit_, duplicate_, remove_}) {
    action->setEnabled(hasFile && current_() >= 0);
  }
}

void ProfileActions::ReportResult(const QString& title, const QString& error, int selected) {
  if (error.isEmpty()) {
    Q_EMIT Changed(selected);
  } else {
    ShowError(window_, title, tr("This could not be done; nothing was changed."), error);
  }
}

void ProfileActions::OpenFile() {
  AskForFile(
      window_,
      {.kind = FileQuestion::Kind::Open,
       .title = tr("Open Profiles"),
       .suggestion = document_.FileName(),
       .filter = tr("Profiles (*.json);;All files (*)")},
      [this](const QString& path) { ReportResult(tr("Open Profiles"), document_.Load(path), -1); });
}

void ProfileActions::ReloadFile() {
  ReportResult(tr("Reload"), document_.Load(document_.FileName()), -1);
}

void ProfileActions::SaveFileAs() {
  AskForFile(window_,
             {.kind = FileQuestion::Kind::Save,
              .title = tr("Save Profiles As"),
              .suggestion = document_.FileName(),
              .filter = tr("Profiles (*.json);;All files (*)")},
             [this](const QString& path) {
               ReportResult(tr("Save Profiles As"), document_.SaveAs(path), current_());
             });
}

// A new projector is inserted after the selected one.
void ProfileActions::AddProjector() {
  const int after =
      current_() < 0 ? static_cast<int>(document_.Projectors().size()) - 1 : current_();
  const auto apply = [this, after](const JsonEdit::Members& members) {
    return document_.Insert(Position(after), members);
  };
  OpenEditor(new ProfileEditor(document_, {}, apply, &window_), after + 1);
}

void ProfileActions::EditProjector() {
  const int row = current_();
  const auto apply = [this, row](const JsonEdit::Members& members) {
    return document_.Change(Position(row), members);
  };
  OpenEditor(new ProfileEditor(document_, document_.Entry(Position(row)), apply, &window_), row);
}

void ProfileActions::OpenEditor(ProfileEditor* editor, int selected) {
  editor->setAttribute(Qt::WA_DeleteOnClose);
  connect(editor, &QDialog::accepted, this, [this, selected] { Q_EMIT Changed(selected); });
  editor->open();
}

void ProfileActions::DuplicateProjector() {
  const int row = current_();
  const auto& all = document_.Projectors();
  const QString name = QString::fromStdString(all[Position(row)].Name);
  QString copy;
  for (int number = 2; copy.isEmpty(); ++number) {
    const QString candidate = QStringLiteral("%1 (%2)").arg(name).arg(number);
    const bool taken =
        std::ranges::find(all, candidate.toStdString(), &ProjectorProfile::Name) != all.end();
    if (!taken) copy = candidate;
  }
  ReportResult(tr("Duplicate"), document_.Duplicate(Position(row), copy), row + 1);
}

void ProfileActions::RemoveProjector() {
  const int row = current_();
  const QString name = QString::fromStdString(document_.Projectors()[Position(row)].Name);
  auto* question = new QMessageBox(QMessageBox::Question, tr("Remove Projector"),
                                   tr("Remove \"%1\" from %2?").arg(name, document_.FileName()),
                                   QMessageBox::NoButton, &window_);
  question->setAttribute(Qt::WA_DeleteOnClose);
  question->setTextFormat(Qt::PlainText);  // the name must not be taken as markup
  const QPushButton* remove = question->addButton(tr("Remove"), QMessageBox::DestructiveRole);
  question->setDefaultButton(question->addButton(QMessageBox::Cancel));
  connect(question, &QDialog::finished, this, [this, question, remove, row] {
    if (question->clickedButton() != remove) return;
    const int left = static_cast<int>(document_.Projectors().size()) - 1;
    ReportResult(tr("Remove Projector"), document_.Remove(Position(row)), std::min(row, left - 1));
  });
  question->open();
}
