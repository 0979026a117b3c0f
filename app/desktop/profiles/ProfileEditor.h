#pragma once

#include <functional>
#include <set>
#include <vector>

#include <QDialog>
#include <QJsonObject>

#include "fleet/JsonEdit.h"

class CComboBox;
class ProfileDocument;
class QFormLayout;
class QLabel;
class QLineEdit;
class QScrollArea;

/// Asks for what a profile file says of a projector. What is left empty comes from the projector's
/// family; what the dialog does not ask for stays as the file has it.
class ProfileEditor : public QDialog {
  Q_OBJECT

 public:
  /// Takes what was entered and returns what is wrong with it, empty when nothing is. The dialog
  /// stays open until it is taken.
  using Apply = std::function<QString(const JsonEdit::Members&)>;

  /// `entry` is what the file says of the projector, empty for a new one. The document must outlive
  /// the dialog.
  ProfileEditor(const ProfileDocument& document, const QJsonObject& entry, Apply apply,
                QWidget* parent = nullptr);

  /// What was changed, in the order of a new entry.
  JsonEdit::Members Changes() const;

  void accept() override;

 private:
  // A row's path is where the entry says it.
  QLineEdit* AddField(const QString& caption, const char* path);
  CComboBox* AddList(const QString& caption, const char* path);
  void FillLists();
  QJsonObject Family() const;
  void ShowFamily();
  void ShowConnectionFields();
  void GiveRoom();
  void ChooseFittingConnection();
  QString ConnectionKind() const;
  QJsonValue ValueOf(const QLineEdit* field) const;
  QJsonValue Connection() const;
  QString CaptionOf(QWidget* field) const;
  /// The empty fields that need an entry, since no family gives it.
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
  std::set<const CComboBox*> chosen_;  // by the user
};
