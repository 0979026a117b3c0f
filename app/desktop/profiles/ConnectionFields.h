#pragma once

#include <set>
#include <vector>

#include <QJsonValue>
#include <QObject>

#include "device/Connect.h"
#include "fleet/JsonEdit.h"

class CComboBox;
class ConnectionTest;
class EntryForm;
class ModelFields;
class QLineEdit;

/// The rows that say how a projector is reached.
class ConnectionFields : public QObject {
  Q_OBJECT

 public:
  /// Adds the rows to `form`, which owns this object. `model` must outlive it.
  ConnectionFields(const ModelFields& model, EntryForm& form);

  /// The members of the entry.
  JsonEdit::Members Members() const;
  /// Empty fields that must be filled in.
  std::vector<QLineEdit*> Missing() const;
  /// A copy needs another address.
  void AskForAddress();

 Q_SIGNALS:
  /// What is wrong with the address that is being typed; empty if nothing is.
  void AddressChecked(const QString& error);

 private:
  void FillLists();
  void TakeFamily();
  void FillPort();
  void CheckAddress();
  void ShowRows();
  void ChooseFittingConnection();
  /// The chosen link, or else the family's.
  QString Link() const;
  QString ConnectionKind() const;
  QJsonValue Connection() const;
  ProjectorAddress Address() const;

  const ModelFields& model_;
  EntryForm& form_;
  CComboBox* link_;
  CComboBox* connection_;
  QLineEdit* address_;
  QLineEdit* networkPort_;
  QLineEdit* secret_;
  QLineEdit* serialPort_;
  QLineEdit* device_;
  QLineEdit* baud_;
  ConnectionTest* test_;
  std::set<const CComboBox*> chosen_;  // lists that the user has operated
};
