#pragma once

#include <vector>

#include <QJsonObject>
#include <QMap>
#include <QObject>

#include "fleet/JsonEdit.h"

class CComboBox;
class EntryForm;
class ProfileDocument;
class QCheckBox;
class QLineEdit;

/// The rows that say which model a projector is: chosen by its name, or with the family and numbers
/// that the file knows nothing of.
class ModelFields : public QObject {
  Q_OBJECT

 public:
  /// Adds the rows to `form`, which owns this object. `document` must outlive it.
  ModelFields(const ProfileDocument& document, EntryForm& form);

  /// The settings of the chosen family.
  QJsonObject Family() const;
  /// The members of the entry.
  JsonEdit::Members Members() const;
  /// Empty fields that must be filled in because no family has a value.
  std::vector<QLineEdit*> Missing() const;
  /// Shows all rows.
  void ShowAll();

 Q_SIGNALS:
  void FamilyChanged();

 private:
  void FillFamilies();
  void OfferModels();
  void TakeModel();
  void ShowFamily();
  void ShowRows();

  const ProfileDocument& document_;
  EntryForm& form_;
  CComboBox* family_;
  QLineEdit* model_;
  QCheckBox* more_;
  QLineEdit* dialogType_;
  QLineEdit* modelCode_;
  const QMap<QString, QJsonObject> models_;
  QJsonObject modelMembers_;  // of the model that was chosen, without those that have a field
};
