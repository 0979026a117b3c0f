#pragma once

#include <QCoreApplication>
#include <QSortFilterProxyModel>
#include <QStandardItemModel>

#include "snapshots/Restoration.h"

/// The table of a `RestoreDialog`: a row for each setting of each projector, with its outcome.
class OutcomeTable : public QStandardItemModel {
  Q_DECLARE_TR_FUNCTIONS(RestoreDialog)

 public:
  enum Column { kProjector, kSetting, kHere, kFile, kResult, kColumnCount };

  explicit OutcomeTable(QObject* parent);

  /// Appends a row and returns its number. A checkable row starts checked.
  int Append(const QString& projector, const QString& setting, const QString& key,
             bool isCheckable);
  void SetValues(int row, const QString& here, const QString& file);
  void SetOutcome(int row, Outcome outcome);

  Outcome OutcomeOf(int row) const;
  bool IsCheckable(int row) const { return item(row, kSetting)->isCheckable(); }
  bool IsChecked(int row) const;
  void Uncheck(int row);
  /// Unchecks a row that has nothing left to do.
  void UncheckDone(int row);

  /// Counts of all outcomes that occur: "12 changed, 28 already so, 1 refused".
  QString Summary() const;

 private:
  static QString TextOf(Outcome outcome);
};

/// Shows rows that contain the typed text. May hide settings that already have the value of the
/// file.
class OutcomeFilter : public QSortFilterProxyModel {
 public:
  using QSortFilterProxyModel::QSortFilterProxyModel;

  void HideSame(bool hide);

 protected:
  bool filterAcceptsRow(int row, const QModelIndex& parent) const override;

 private:
  bool hidesSame_ = true;
};
