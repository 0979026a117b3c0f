#pragma once

#include <optional>
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

/// The rows that choose the model of a projector: by its name, or, for a model that the file does
/// not know, by family and numbers.
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
  const QMap<QString, QJsonObject> models_;
  QLineEdit* model_;
  QCheckBox* more_;
  QLineEdit* dialogType_;
  QLineEdit* modelCode_;
  QJsonObject modelMembers_;           // members of the chosen model that have no field
  std::optional<QJsonObject> before_;  // what the fields had before those of a known model
};
