#pragma once

#include <functional>
#include <memory>

#include <QObject>

class ProfileDocument;
class ProfileFileActions;
class ProfileHistory;
class QAction;
class QWidget;

/// Menu actions that add many projectors to the profile file, or export them: found on the network,
/// or as a table of comma-separated values.
class TransferActions : public QObject {
  Q_OBJECT

 public:
  /// All must outlive this object, which the window owns.
  TransferActions(ProfileDocument& document, ProfileHistory& history, ProfileFileActions& files,
                  QWidget& window);

  QAction* Find() const { return find_; }
  QAction* Import() const { return import_; }
  QAction* Export() const { return export_; }

  void Update();

  /// Imports the rows of a table, and shows the result.
  void ImportFile(const QString& path);

 private:
  void AskForSearch();
  void AskForImport();
  void AskForExport();

  ProfileDocument& document_;
  ProfileHistory& history_;
  QWidget& window_;
  QAction* find_;
  QAction* import_;
  QAction* export_;
};
