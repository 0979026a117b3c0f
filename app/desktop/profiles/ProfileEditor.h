#pragma once

#include <functional>
#include <set>
#include <vector>

#include <QDialog>
#include <QJsonObject>
#include <QMap>

#include "device/Connect.h"
#include "fleet/JsonEdit.h"

class CComboBox;
class ConnectionTest;
class ProfileDocument;
class QCheckBox;
class QFormLayout;
class QLabel;
class QLineEdit;
class QScrollArea;

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

 Q_SIGNALS:
  /// The file cannot be written, and the user wants another one.
  void SaveAsWanted();

 private:
  // `path` is the member's place in the entry, such as "connection.network.port".
  QLineEdit* AddField(const QString& caption, const char* path);
  CComboBox* AddList(const QString& caption, const char* path);
  void FillLists();
  QJsonObject Family() const;
  void ShowFamily();
  void TakeModel();
  void ShowModelFields();
  void FillPort();
  void CheckAddress();
  ProjectorAddress Address() const;
  void ShowConnectionFields();
  void FitHeight();
  void ChooseFittingConnection();
  QString ConnectionKind() const;
  QJsonValue ValueOf(const QLineEdit* field) const;
  QJsonValue Connection() const;
  QString CaptionOf(QWidget* field) const;
  /// Empty fields that must be filled in, because no family has a value.
  std::vector<QLineEdit*> Missing() const;
  void ShowError(const QString& error, QWidget* row);

  const ProfileDocument& document_;
  const QJsonObject entry_;
  const Apply apply_;
  QFormLayout* form_;
  QLineEdit* name_;
  CComboBox* family_;
  QLineEdit* model_;
  QLineEdit* dialogType_;
  QLineEdit* modelCode_;
  CComboBox* link_;
  CComboBox* connection_;
  QLineEdit* address_;
  QLineEdit* networkPort_;
  QLineEdit* secret_;
  QLineEdit* serialPort_;
  QLineEdit* device_;
  QLineEdit* baud_;
  QScrollArea* rows_;
  QLabel* error_;
  QCheckBox* more_;
  ConnectionTest* test_;
  const QMap<QString, QJsonObject> models_;
  QJsonObject modelMembers_;  // of the model that was chosen, without those that have a field
  std::set<const CComboBox*> chosen_;  // lists that the user has operated
};
