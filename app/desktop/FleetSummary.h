#pragma once

#include <vector>

#include <QLabel>

#include "app/desktop/projectors/ProjectorRow.h"

/// "198 on · 31 off · 2 with problems · oldest answer 12 s ago", for the status bar.
class FleetSummary : public QLabel {
  Q_OBJECT

 public:
  explicit FleetSummary(QWidget* parent = nullptr);

  void Show(const std::vector<ProjectorRow>& rows);
};
