#include "app/desktop/profiles/ProfileFileActions.h"

#include <utility>

#include <QAction>
#include <QMessageBox>
#include <QPushButton>
#include <QWidget>

#include "app/desktop/Modal.h"
#include "app/desktop/profiles/MakeAction.h"
#include "app/desktop/profiles/ProfileDocument.h"
#include "app/desktop/profiles/ProfileHistory.h"
#include "toolkit/Icons.h"

ProfileFileActions::ProfileFileActions(ProfileDocument& document, ProfileHistory& history,
                                       QWidget& window)
    : QObject(&window),
      document_(document),
      history_(history),
      window_(window),
      open_(MakeAction(*this, tr("&Open Profiles…"), QKeySequence::Open, [this] { OpenFile(); })),
      reload_(MakeAction(*this, tr("&Reload"), QKeySequence::Refresh, [this] { ReloadFile(); })),
      saveAs_(MakeAction(*this, tr("&Save Profiles As…"), Qt::CTRL | Qt::SHIFT | Qt::Key_S,
                         [this] { SaveFileAs({}); })) {
  Update();
}

void ProfileFileActions::Update() {
  for (QAction* action : {reload_, saveAs_}) action->setEnabled(document_.HasFile());
}

void ProfileFileActions::OpenFile() {
  AskForFile(window_,
             {.kind = FileQuestion::Kind::Open,
              .title = tr("Open Profiles"),
              .suggestion = document_.FileName(),
              .filter = tr("Profiles (*.json);;All files (*)")},
             [this](const QString& path) {
               history_.Replace(tr("Open Profiles"), [&] { return document_.Load(path); });
             });
}

void ProfileFileActions::ReloadFile() {
  history_.Replace(tr("Reload"), [this] { return document_.Load(document_.FileName()); });
}

void ProfileFileActions::SaveFileAs(std::function<void()> then) {
  AskForFile(window_,
             {.kind = FileQuestion::Kind::Save,
              .title = tr("Save Profiles As"),
              .suggestion = document_.FileName(),
              .filter = tr("Profiles (*.json);;All files (*)")},
             [this, then = std::move(then)](const QString& path) {
               history_.Replace(tr("Save Profiles As"), [&] {
                 QString error = document_.SaveAs(path);
                 if (error.isEmpty()) ShowSaved(window_, path);
                 return error;
               });
               if (then && !document_.IsReadOnly()) then();
             });
}

void ProfileFileActions::WhenWritable(std::function<void()> edit) {
  if (!document_.IsReadOnly()) return edit();
  auto* question =
      new QMessageBox(QMessageBox::Warning, tr("Read-Only File"),
                      tr("%1 cannot be changed. Save the profiles in another file first.")
                          .arg(document_.FileName()),
                      QMessageBox::Cancel, &window_);
  question->setAttribute(Qt::WA_DeleteOnClose);
  question->setTextFormat(Qt::PlainText);
  const QPushButton* saveAs = question->addButton(tr("Save Profiles As…"), QMessageBox::ActionRole);
  connect(question, &QDialog::finished, this, [this, question, saveAs, edit = std::move(edit)] {
    if (question->clickedButton() == saveAs) SaveFileAs(edit);
  });
  RemoveForeignButtonIcons(*question);
  question->open();
}
