#pragma once

#include <QJsonObject>
#include <QScrollArea>

class CComboBox;
class QFormLayout;
class QLineEdit;

/// The rows of a projector's entry in the profile file. If there is no room for all, they scroll.
/// A row's field is called like the place of its member in the entry: "connection.network.port".
class EntryForm : public QScrollArea {
  Q_OBJECT

 public:
  /// `entry` is the projector's present entry, empty for a new one.
  explicit EntryForm(const QJsonObject& entry, QWidget* parent = nullptr);

  const QJsonObject& Entry() const { return entry_; }

  /// A field that shows the member at `path`.
  QLineEdit* AddField(const QString& caption, const char* path);
  /// The same with a list of texts to choose from.
  QLineEdit* AddChoice(const QString& caption, const char* path, const QStringList& choices);
  CComboBox* AddList(const QString& caption, const char* path);
  /// A row without a caption.
  void AddWidget(QWidget* widget);
  /// The same, over the whole width.
  void AddWideWidget(QWidget* widget);
  void SetRowVisible(QWidget* field, bool isVisible);

  /// The value for the file: exactly the present one if the field has not changed, undefined if it
  /// is empty. Numbers are those of fields with a validator.
  QJsonValue ValueOf(const QLineEdit* field, bool keepsSpaces = false) const;
  QString CaptionOf(QWidget* field) const;

  /// The size at which nothing scrolls.
  QSize WholeSize() const;

  static QString TextOf(const QJsonValue& value);
  /// Undefined if the text is empty.
  static QJsonValue TextOrNothing(const QString& text);
  static bool IsBlank(const QLineEdit* field);

 Q_SIGNALS:
  /// Rows have been shown or hidden, or need another height.
  void RowsChanged();

 private:
  const QJsonObject entry_;
  QFormLayout* form_;
};
