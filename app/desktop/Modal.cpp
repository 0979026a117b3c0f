#include "app/desktop/Modal.h"

#include <utility>

#include <QCoreApplication>
#include <QDir>
#include <QFileDialog>
#include <QFileInfo>
#include <QMainWindow>
#include <QMessageBox>
#include <QStatusBar>

#include "toolkit/Icons.h"

namespace {

constexpr qsizetype kLinesShown = 10;
constexpr int kMessageTime = 10'000;  // milliseconds

QString& Folder() {
  static QString folder;
  return folder;
}

}  // namespace

QString LastFolder() { return Folder(); }

void SetLastFolder(const QString& folder) { Folder() = folder; }

void AskForFile(QWidget& window, const FileQuestion& question,
                std::function<void(const QString& path)> take) {
  using Kind = FileQuestion::Kind;
  auto* dialog = new QFileDialog(&window, question.title);
  dialog->setAttribute(Qt::WA_DeleteOnClose);
  if (question.kind == Kind::Folder) {
    dialog->setFileMode(QFileDialog::Directory);
    dialog->setOption(QFileDialog::ShowDirsOnly);
  } else {
    const bool saves = question.kind == Kind::Save;
    dialog->setFileMode(saves ? QFileDialog::AnyFile : QFileDialog::ExistingFile);
    dialog->setAcceptMode(saves ? QFileDialog::AcceptSave : QFileDialog::AcceptOpen);
    dialog->setNameFilter(question.filter);
  }
  if (QFileInfo(Folder()).isDir()) dialog->setDirectory(Folder());
  if (!question.suggestion.isEmpty()) dialog->selectFile(question.suggestion);
  QObject::connect(dialog, &QFileDialog::fileSelected, &window,
                   [kind = question.kind](const QString& path) {
                     SetLastFolder(kind == Kind::Folder ? path : QFileInfo(path).absolutePath());
                   });
  QObject::connect(dialog, &QFileDialog::fileSelected, &window, std::move(take));
  dialog->open();
}

void ShowSaved(QWidget& window, const QString& path) {
  const QString text = QCoreApplication::translate("Modal", "Saved in %1.");
  for (QWidget* widget = &window; widget != nullptr; widget = widget->parentWidget()) {
    if (auto* main = qobject_cast<QMainWindow*>(widget))
      main->statusBar()->showMessage(text.arg(QDir::toNativeSeparators(path)), kMessageTime);
  }
}

void ShowError(QWidget& window, const QString& title, const QString& text, const QString& detail) {
  auto* box = new QMessageBox(QMessageBox::Critical, title, text, QMessageBox::Ok, &window);
  box->setAttribute(Qt::WA_DeleteOnClose);
  box->setTextFormat(Qt::PlainText);  // text from a file must not be taken as markup
  box->setInformativeText(detail);
  const QStringList lines = text.split(QLatin1Char('\n'));
  if (lines.size() > kLinesShown) {
    box->setText(lines.first(kLinesShown).join(QLatin1Char('\n')) + QStringLiteral("\n…"));
    box->setDetailedText(text);
  }
  RemoveForeignButtonIcons(*box);
  box->open();
}
