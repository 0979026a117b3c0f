#include "app/desktop/profiles/ProfileHistory.h"

#include <utility>

#include <QAction>
#include <QUndoCommand>
#include <QUndoStack>
#include <QWidget>

#include "app/desktop/Modal.h"
#include "app/desktop/profiles/ProfileDocument.h"

namespace {

constexpr int kMostUndone = 50;

}  // namespace

/// The text of the file before and after an edit, and what changes other files.
class ProfileHistory::TextEdit : public QUndoCommand {
 public:
  TextEdit(ProfileHistory& history, const QString& title, QByteArray before, QByteArray after,
           Beside beside)
      : QUndoCommand(title),
        history_(history),
        before_(std::move(before)),
        after_(std::move(after)),
        beside_(std::move(beside)) {}

  void undo() override { Put(before_, beside_.undo, beside_.redo, &QUndoStack::redo); }
  void redo() override { Put(after_, beside_.redo, beside_.undo, &QUndoStack::undo); }

 private:
  void Put(const QByteArray& text, const std::function<QString()>& change,
           const std::function<QString()>& changeBack, void (QUndoStack::*back)()) {
    if (std::exchange(isSo_, false)) return;
    QString error = change ? change() : QString();
    if (!error.isEmpty()) {
      history_.next_ = &QUndoStack::clear;
      error += QLatin1Char('\n') + ProfileHistory::tr("The edits so far can no longer be undone.");
    } else if (error = history_.document_.Write(text); !error.isEmpty()) {
      if (changeBack) changeBack();
      isSo_ = true;
      history_.next_ = back;
    }
    history_.Report(this->text(), error);
    if (error.isEmpty()) Q_EMIT history_.Changed(-1);
  }

  ProfileHistory& history_;
  const QByteArray before_;
  const QByteArray after_;
  const Beside beside_;
  bool isSo_ = true;  // it has the text already that it is asked for next
};

ProfileHistory::ProfileHistory(ProfileDocument& document, QWidget& window)
    : QObject(&window),
      document_(document),
      window_(window),
      stack_(new QUndoStack(this)),
      undo_(stack_->createUndoAction(this, tr("&Undo"))),
      redo_(stack_->createRedoAction(this, tr("&Redo"))) {
  stack_->setUndoLimit(kMostUndone);
  connect(stack_, &QUndoStack::indexChanged, this, [this] {
    if (const auto next = std::exchange(next_, nullptr)) (stack_->*next)();
  });
  undo_->setShortcut(QKeySequence::Undo);
  redo_->setShortcut(QKeySequence::Redo);
}

QString ProfileHistory::Do(const QString& title, int selected, const std::function<QString()>& edit,
                           const Beside& beside) {
  const QByteArray before = document_.Text();
  const QString error = edit();
  if (!error.isEmpty()) return error;
  if (before != document_.Text() || beside.undo)
    stack_->push(new TextEdit(*this, title, before, document_.Text(), beside));
  Q_EMIT Changed(selected);
  return {};
}

void ProfileHistory::DoAndReport(const QString& title, int selected,
                                 const std::function<QString()>& edit) {
  Report(title, Do(title, selected, edit));
}

void ProfileHistory::Replace(const QString& title, const std::function<QString()>& replace) {
  const QByteArray before = document_.Text();
  const QString error = replace();
  if (before != document_.Text()) stack_->clear();
  Report(title, error);
  if (error.isEmpty()) Q_EMIT Changed(-1);
}

void ProfileHistory::Report(const QString& title, const QString& error) {
  if (!error.isEmpty())
    ShowError(window_, title, tr("This could not be done; nothing was changed."), error);
}
