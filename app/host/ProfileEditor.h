#pragma once

#include <functional>

#include <QDialog>
#include <QJsonObject>

#include "app/host/JsonEdit.h"

class ProfileDocument;
class QComboBox;
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
  QLineEdit* AddField(const QString& caption, const QString& text);
  void AddLinks();
  void AddConnectionFields();
  void ShowFamily();
  void ShowConnectionFields();
  void GiveRoom();
  void ChooseFittingConnection();
  QString ConnectionKind() const;
  QJsonValue Connection() const;

  const ProfileDocument& document_;
  const QJsonObject entry_;
  const Apply apply_;
  QFormLayout* form_;
  QLineEdit* name_;
  QComboBox* family_;
  QLineEdit* model_;
  QLineEdit* dialogType_;
  QLineEdit* modelCode_;
  QComboBox* link_;
  QComboBox* connection_;
  QLineEdit* address_;
  QLineEdit* networkPort_;
  QLineEdit* secret_;
  QLineEdit* serialPort_;
  QLineEdit* device_;
  QLineEdit* baud_;
  QScrollArea* rows_;
  QLabel* error_;
};
