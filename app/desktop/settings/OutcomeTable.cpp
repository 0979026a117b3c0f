#include "app/desktop/settings/OutcomeTable.h"

#include <array>

namespace {

constexpr int kOutcomeRole = Qt::UserRole;

}  // namespace

OutcomeTable::OutcomeTable(QObject* parent) : QStandardItemModel(0, kColumnCount, parent) {
  setHorizontalHeaderLabels({tr("Projector"), tr("Setting"), tr("Here"), tr("File"), tr("Result")});
}

int OutcomeTable::Append(const QString& projector, const QString& setting, const QString& key,
                         bool isCheckable) {
  QList<QStandardItem*> row;
  for (const QString& text : {projector, setting, QString(), QString(), QString()}) {
    row.append(new QStandardItem(text));
  }
  row[kSetting]->setToolTip(key.toHtmlEscaped());
  row[kSetting]->setCheckable(isCheckable);
  if (isCheckable) row[kSetting]->setCheckState(Qt::Checked);
  appendRow(row);
  return rowCount() - 1;
}

void OutcomeTable::SetValues(int row, const QString& here, const QString& file) {
  item(row, kHere)->setText(here);
  item(row, kFile)->setText(file);
}

void OutcomeTable::SetOutcome(int row, Outcome outcome) {
  item(row, kResult)->setText(TextOf(outcome));
  item(row, kResult)->setData(static_cast<int>(outcome), kOutcomeRole);
}

Outcome OutcomeTable::OutcomeOf(int row) const {
  return static_cast<Outcome>(item(row, kResult)->data(kOutcomeRole).toInt());
}

bool OutcomeTable::IsChecked(int row) const {
  return item(row, kSetting)->checkState() == Qt::Checked;
}

void OutcomeTable::Uncheck(int row) { item(row, kSetting)->setCheckState(Qt::Unchecked); }

void OutcomeTable::UncheckDone(int row) {
  const Outcome outcome = OutcomeOf(row);
  if (outcome == Outcome::Changed || outcome == Outcome::AlreadySo) Uncheck(row);
}

QString OutcomeTable::TextOf(Outcome outcome) {
  switch (outcome) {
    case Outcome::NotReached:
      return tr("not read");
    case Outcome::AlreadySo:
      return tr("already so");
    case Outcome::Differs:
      return tr("different");
    case Outcome::Changed:
      return tr("changed");
    case Outcome::Refused:
      return tr("refused");
    case Outcome::Pending:
      return tr("accepted, not yet so");
    case Outcome::Busy:
      return tr("refused: the projector is busy or in standby");
    case Outcome::Unconfirmed:
      return tr("not confirmed");
    case Outcome::Unknown:
      return tr("skipped: this model does not have it");
    case Outcome::NotOffered:
      return tr("skipped: this projector does not offer it");
    case Outcome::NotSettable:
      return tr("skipped: it is not one to put back");
    case Outcome::NotAllowed:
      return tr("skipped: this model does not take the value");
  }
  return {};
}

QString OutcomeTable::Summary() const {
  std::array<int, 12> counts{};
  for (int row = 0; row < rowCount(); ++row) ++counts[static_cast<std::size_t>(OutcomeOf(row))];
  const auto count = [&counts](Outcome outcome) {
    return counts[static_cast<std::size_t>(outcome)];
  };
  const int skipped = count(Outcome::Unknown) + count(Outcome::NotOffered) +
                      count(Outcome::NotSettable) + count(Outcome::NotAllowed);
  QStringList parts;
  const auto add = [&parts](int number, const char* what) {
    if (number > 0) parts.append(tr(what, nullptr, number));
  };
  //: How many settings came to this, in a list such as "12 changed, 3 refused".
  add(count(Outcome::Changed), QT_TR_N_NOOP("%n changed"));
  add(count(Outcome::Differs), QT_TR_N_NOOP("%n different"));
  add(count(Outcome::AlreadySo), QT_TR_N_NOOP("%n already so"));
  add(count(Outcome::Pending), QT_TR_N_NOOP("%n not yet so"));
  add(count(Outcome::Refused) + count(Outcome::Busy), QT_TR_N_NOOP("%n refused"));
  add(count(Outcome::Unconfirmed), QT_TR_N_NOOP("%n not confirmed"));
  add(count(Outcome::NotReached), QT_TR_N_NOOP("%n not read"));
  add(skipped, QT_TR_N_NOOP("%n skipped"));
  return parts.join(QStringLiteral(", "));
}

void OutcomeFilter::HideSame(bool hide) {
  hidesSame_ = hide;
  invalidateFilter();
}

bool OutcomeFilter::filterAcceptsRow(int row, const QModelIndex& parent) const {
  const QVariant outcome = sourceModel()->index(row, OutcomeTable::kResult).data(kOutcomeRole);
  const bool isSame = outcome.toInt() == static_cast<int>(Outcome::AlreadySo);
  return !(hidesSame_ && isSame) && QSortFilterProxyModel::filterAcceptsRow(row, parent);
}
