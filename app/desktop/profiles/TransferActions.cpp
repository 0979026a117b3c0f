#include "app/desktop/profiles/TransferActions.h"

#include <algorithm>

#include <QAction>
#include <QMessageBox>

#include "app/desktop/Modal.h"
#include "app/desktop/profiles/ProfileDocument.h"
#include "app/desktop/profiles/ProfileFileActions.h"
#include "app/desktop/profiles/ProfileHistory.h"
#include "app/desktop/profiles/SearchDialog.h"
#include "fleet/ProfileCsv.h"
#include "fleet/SearchProfiles.h"
#include "fleet/WholeFile.h"
#include "toolkit/Icons.h"

namespace {

constexpr qsizetype kMostBytes = 64 << 20;

}  // namespace

TransferActions::TransferActions(ProfileDocument& document, ProfileHistory& history,
                                 ProfileFileActions& files, QWidget& window)
    : QObject(&window),
      document_(document),
      history_(history),
      window_(window),
      find_(new QAction(tr("Find on the &Network…"), this)),
      import_(new QAction(tr("&Import Table…"), this)),
      export_(new QAction(tr("E&xport Table…"), this)) {
  find_->setIconText(tr("Find Projectors"));
  connect(find_, &QAction::triggered, this,
          [this, &files] { files.WhenWritable([this] { AskForSearch(); }); });
  connect(import_, &QAction::triggered, this,
          [this, &files] { files.WhenWritable([this] { AskForImport(); }); });
  connect(export_, &QAction::triggered, this, &TransferActions::AskForExport);
  Update();
}

void TransferActions::Update() {
  for (QAction* action : {find_, import_}) action->setEnabled(document_.HasFile());
}

void TransferActions::AskForSearch() {
  auto* dialog = new SearchDialog(document_.Projectors(), &window_);
  dialog->setAttribute(Qt::WA_DeleteOnClose);
  connect(dialog, &QDialog::accepted, this, [this, dialog] {
    const TakenProjectors taken = TakeFound(document_.Text(), dialog->Chosen(), dialog->Password());
    const int first = static_cast<int>(document_.Projectors().size());
    history_.DoAndReport(tr("Add Found Projectors"), taken.added.isEmpty() ? -1 : first,
                         [&] { return document_.Write(taken.text); });
  });
  dialog->open();
}

void TransferActions::AskForImport() {
  AskForFile(window_,
             {.kind = FileQuestion::Kind::Open,
              .title = tr("Import Table"),
              .suggestion = {},
              .filter = tr("Tables (*.csv *.tsv *.txt);;All files (*)")},
             [this](const QString& path) { ImportFile(path); });
}

void TransferActions::ImportFile(const QString& path) {
  const QString title = tr("Import Table");
  const FileBytes file = ReadToEnd(path, kMostBytes);
  if (!file.error.isEmpty()) return ShowError(window_, title, file.error);
  const CsvImport imported = ImportCsv(document_.Text(), file.bytes);
  if (!imported.error.isEmpty()) return ShowError(window_, title, imported.error);
  const QString error = history_.Do(title, -1, [&] { return document_.Write(imported.text); });
  if (!error.isEmpty()) return ShowError(window_, title, error);
  const QStringList said{
      tr("%n projectors added", nullptr, static_cast<int>(imported.added)),
      tr("%n already known", nullptr, static_cast<int>(imported.changed)),
      tr("%n rows not taken", nullptr, static_cast<int>(imported.faults.size()))};
  auto* box = new QMessageBox(QMessageBox::Information, title, said.join(QStringLiteral(" · ")),
                              QMessageBox::Ok, &window_);
  box->setAttribute(Qt::WA_DeleteOnClose);
  box->setTextFormat(Qt::PlainText);
  QStringList faults;
  for (const CsvFault& fault : imported.faults)
    faults += tr("Line %1: %2").arg(fault.line).arg(fault.reason);
  if (!imported.unused.isEmpty())
    faults += tr("Columns not used: %1").arg(imported.unused.join(QLatin1String(", ")));
  if (!faults.isEmpty()) {
    box->setIcon(QMessageBox::Warning);
    box->setInformativeText(
        faults.first(std::min<qsizetype>(faults.size(), 12)).join(QLatin1Char('\n')));
    if (faults.size() > 12) box->setDetailedText(faults.join(QLatin1Char('\n')));
  }
  RemoveForeignButtonIcons(*box);
  box->open();
}

void TransferActions::AskForExport() {
  AskForFile(window_,
             {.kind = FileQuestion::Kind::Save,
              .title = tr("Export Table"),
              .suggestion = QStringLiteral("projectors.csv"),
              .filter = tr("Tables (*.csv);;All files (*)")},
             [this](const QString& path) {
               const QString error = WriteWholeFile(path, ExportCsv(document_.Projectors()));
               if (!error.isEmpty()) return ShowError(window_, tr("Export Table"), error);
               ShowSaved(window_, path);
             });
}
