#pragma once

#include <functional>
#include <vector>

#include <QDialog>
#include <QJsonObject>

#include "fleet/JsonEdit.h"

class ConnectionFields;
class EntryForm;
class ModelFields;
class ProfileDocument;
class QLabel;
class QLineEdit;

/// Edits a projector's entry in the profile file. Empty fields take their value from the
/// projector's family. Members that have no field keep their values.
class ProfileEditor : public QDialog {
  Q_OBJECT

 public:
  /// Applies the changes and returns an error, empty on success. The dialog stays open until they
  /// are applied.
  using Apply = std::function<QString(const JsonEdit::Members&)>;

  /// `entry` is the projector's present entry, empty for a new one. The document must outlive the
  /// dialog.
  ProfileEditor(const ProfileDocument& document, const QJsonObject& entry, Apply apply,
                QWidget* parent = nullptr);

  /// The changed members, in the order of a new entry.
  JsonEdit::Members Changes() const;

  /// Makes the entry one for a copy: with this name, and with an address that is yet to be typed.
  void AskForCopy(const QString& name);

  void accept() override;

 private:
  void FitHeight();
  /// Empty fields that must be filled in.
  std::vector<QLineEdit*> Missing() const;
  /// Shows the error and leads to the row that it is about, which may be null.
  void ShowError(const QString& error, QWidget* row);

  const Apply apply_;
  EntryForm* form_;
  QLineEdit* name_;
  ModelFields* model_;
  ConnectionFields* connection_;
  QLabel* error_;
};
