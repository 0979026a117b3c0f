#pragma once

#include <QCollator>
#include <QSortFilterProxyModel>
#include <QStringList>

/// The projectors that match the search, sorted by a column or in the order of the file. Numbers
/// within texts sort as numbers.
class ProjectorFilter : public QSortFilterProxyModel {
  Q_OBJECT

 public:
  explicit ProjectorFilter(QObject* parent = nullptr);

  /// Shows the projectors for which each word occurs in a column or in the name of a tab, ignoring
  /// case. Without a word all projectors are shown.
  void Search(const QString& words);

 protected:
  bool filterAcceptsRow(int row, const QModelIndex& parent) const override;
  bool lessThan(const QModelIndex& left, const QModelIndex& right) const override;

 private:
  QStringList words_;
  QCollator collator_;
};
