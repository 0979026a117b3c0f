#pragma once

#include <QCollator>
#include <QSortFilterProxyModel>
#include <QStringList>

/// The projectors that a search finds, in the order of the column that is sorted by, or of their
/// file. Numbers in texts are ordered as numbers.
class ProjectorFilter : public QSortFilterProxyModel {
  Q_OBJECT

 public:
  explicit ProjectorFilter(QObject* parent = nullptr);

  /// Keeps the projectors of which each word stands in a column or in the name of a tab, whatever
  /// its case; all of them without a word.
  void Search(const QString& words);

 protected:
  bool filterAcceptsRow(int row, const QModelIndex& parent) const override;
  bool lessThan(const QModelIndex& left, const QModelIndex& right) const override;

 private:
  QStringList words_;
  QCollator collator_;
};
