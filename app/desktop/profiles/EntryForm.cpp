#include "app/desktop/profiles/EntryForm.h"

#include <QFormLayout>
#include <QLabel>
#include <QLineEdit>
#include <QScrollBar>

#include "app/desktop/Mnemonic.h"
#include "fleet/OneLine.h"
#include "toolkit/CComboBox.h"

namespace {

constexpr int kFieldWidth = 26;  // in average characters

/// The value at a path such as "connection.network.port".
QJsonValue ValueAt(const QJsonObject& entry, const QString& path) {
  QJsonValue value = entry;
  for (const QString& key : path.split(QLatin1Char('.'))) value = value.toObject().value(key);
  return value;
}

}  // namespace

EntryForm::EntryForm(const QJsonObject& entry, QWidget* parent)
    : QScrollArea(parent), entry_(entry) {
  auto* contents = new QWidget;
  form_ = new QFormLayout(contents);
  form_->setContentsMargins({});
  setFrameShape(QFrame::NoFrame);
  setFocusPolicy(Qt::NoFocus);
  setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
  setWidgetResizable(true);
  setWidget(contents);
}

QString EntryForm::TextOf(const QJsonValue& value) {
  return value.isDouble() ? QString::number(value.toInt()) : value.toString();
}

QJsonValue EntryForm::TextOrNothing(const QString& text) {
  return text.isEmpty() ? QJsonValue(QJsonValue::Undefined) : QJsonValue(text);
}

bool EntryForm::IsBlank(const QLineEdit* field) { return field->text().trimmed().isEmpty(); }

QLineEdit* EntryForm::AddField(const QString& caption, const char* path) {
  auto* field = new QLineEdit(TextOf(ValueAt(entry_, path)));
  field->setObjectName(path);
  field->setMinimumWidth(field->fontMetrics().averageCharWidth() * kFieldWidth);
  form_->addRow(caption, field);
  return field;
}

QLineEdit* EntryForm::AddChoice(const QString& caption, const char* path,
                                const QStringList& choices) {
  auto* list = new CComboBox;
  list->setEditable(true);
  list->setInsertPolicy(QComboBox::NoInsert);
  list->addItems(choices);
  const QString text = TextOf(ValueAt(entry_, path));
  list->setCurrentIndex(list->findText(text));
  QLineEdit* field = list->lineEdit();
  field->setText(text);
  field->setObjectName(path);
  auto* label = new QLabel(caption);
  label->setBuddy(field);
  list->setAccessibleName(WithoutMnemonic(caption));
  form_->addRow(label, list);
  return field;
}

CComboBox* EntryForm::AddList(const QString& caption, const char* path) {
  auto* list = new CComboBox;
  list->setObjectName(path);
  form_->addRow(caption, list);
  return list;
}

void EntryForm::AddWidget(QWidget* widget) { form_->addRow(QString(), widget); }

void EntryForm::AddWideWidget(QWidget* widget) { form_->addRow(widget); }

void EntryForm::SetRowVisible(QWidget* field, bool isVisible) {
  form_->setRowVisible(field, isVisible);
  Q_EMIT RowsChanged();
}

QJsonValue EntryForm::ValueOf(const QLineEdit* field, bool keepsSpaces) const {
  QJsonValue written = ValueAt(entry_, field->objectName());
  if (field->text() == TextOf(written)) return written;
  const QString line = OneLine(field->text());
  const QString text = keepsSpaces ? line : line.trimmed();
  if (text.isEmpty()) return QJsonValue::Undefined;
  bool isNumber = false;
  const int number = text.toInt(&isNumber);
  return isNumber && field->validator() != nullptr ? QJsonValue(number) : QJsonValue(text);
}

QString EntryForm::CaptionOf(QWidget* field) const {
  QWidget* label = form_->labelForField(field);
  if (label == nullptr) label = form_->labelForField(field->parentWidget());
  return WithoutMnemonic(qobject_cast<QLabel*>(label)->text());
}

QSize EntryForm::WholeSize() const {
  const QSize wanted = form_->sizeHint();
  const int height = form_->hasHeightForWidth() ? form_->heightForWidth(wanted.width())  // wraps
                                                : wanted.height();
  return {wanted.width() + verticalScrollBar()->sizeHint().width(), height};
}
