#pragma once

#include <optional>

#include <QCoreApplication>
#include <QString>
#include <QStringList>

#include "app/desktop/projectors/ProjectorRow.h"

/// What the columns of the list show of a projector, and how they sort it.
class ProjectorColumns {
  Q_DECLARE_TR_FUNCTIONS(ProjectorColumns)

 public:
  enum Column {
    Name,
    State,
    Power,
    Source,
    Lamp,
    Problem,
    Model,
    Place,
    Settings,
    Answered,
    Address,
    ColumnCount
  };

  static QString Title(int column);
  static QString Text(const ProjectorRow& row, int column);
  /// Usual texts of the column, of which the longest should have room.
  static QStringList Samples(int column);
  /// Those that should have room even where there is little: without a second tag, for example.
  static QStringList ShortSamples(int column);
  /// A number to sort by; nothing for a column of texts.
  static std::optional<double> Number(const ProjectorRow& row, int column);
  /// Whether the column shows what the projector reports, and not only its profile.
  static bool ShowsState(int column);
};
