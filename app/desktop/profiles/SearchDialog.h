#pragma once

#include <memory>
#include <string>
#include <vector>

#include <QDialog>
#include <QTimer>

#include "fleet/FleetProfile.h"
#include "fleet/SearchDriver.h"

class QLabel;
class QLineEdit;
class QPushButton;
class QTreeWidget;

/// Searches for projectors and lets the user choose which become profiles. Those that are known
/// already are marked. Nothing is sent before the user starts the search.
class SearchDialog : public QDialog {
  Q_OBJECT

 public:
  SearchDialog(const std::vector<FleetProfile>& known, QWidget* parent);
  ~SearchDialog() override;

  /// What the user has checked.
  std::vector<FoundProjector> Chosen() const;
  std::string Password() const;

 private:
  void Begin();
  void Add(const FoundProjector& found);
  void ShowProgress();
  bool IsKnown(const FoundProjector& found) const;

  const std::vector<FleetProfile>& known_;
  QLineEdit* addresses_;
  QLineEdit* password_;
  QPushButton* search_;
  QPushButton* add_;
  QTreeWidget* list_;
  QLabel* text_;
  QTimer showing_;
  std::vector<FoundProjector> found_;
  bool isOver_ = true;
  std::unique_ptr<SearchDriver> driver_;
};
