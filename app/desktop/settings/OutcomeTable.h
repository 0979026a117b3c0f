#pragma once

#include <QCoreApplication>
#include <QSortFilterProxyModel>
#include <QStandardItemModel>

#include "snapshots/Restoration.h"

/// The table of a `RestoreDialog`: a row for each setting of each projector, with what became of
/// it.
class OutcomeTable : public QStandardItemModel {
  Q_DECLARE_TR_FUNCTIONS(RestoreDialog)

 public:
  enum Column { kProjector, kSetting, kHere, kFile, kResult, kColumnCount };

  explicit OutcomeTable(QObject* parent);

  /// The number of the new row. One that is checkable begins checked.
  int Append(const QString& projector, const QString& setting, const QString& key,
             bool isCheckable);
  void SetValues(int row, const QString& here, const QString& file);
  void SetOutcome(int row, Outcome outcome);

  Outcome OutcomeOf(int row) const;
  bool IsCheckable(int row) const { return item(row, kSetting)->isCheckable(); }
  bool IsChecked(int row) const;
  void Uncheck(int row);
  /// Takes the check away where nothing is left to be done.
  void UncheckDone(int row);

  /// "12 changed, 28 already so, 1 refused"; what there is none of is left out.
  QString Summary() const;

 private:
  static QString TextOf(Outcome outcome);
};

/// Rows whose outcome asks for a look, and whose text has what was typed.
class OutcomeFilter : public QSortFilterProxyModel {
 public:
  using QSortFilterProxyModel::QSortFilterProxyModel;

  void HideSame(bool hide);

 protected:
  bool filterAcceptsRow(int row, const QModelIndex& parent) const override;

 private:
  bool hidesSame_ = true;
};
