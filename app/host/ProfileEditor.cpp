#include "app/host/ProfileEditor.h"

#include <algorithm>
#include <limits>

#include <QComboBox>
#include <QDialogButtonBox>
#include <QFormLayout>
#include <QIntValidator>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QScreen>
#include <QScrollArea>
#include <QScrollBar>
#include <QVBoxLayout>

#include "app/host/ProfileDocument.h"

namespace {

constexpr int kFrameHeight = 40;  // before it is known
constexpr int kFieldWidth = 26;   // average letters
const QString kNetwork = QStringLiteral("network");
const QString kPjLink = QStringLiteral("pjlink");
const QString kSerial = QStringLiteral("serial");

QString TextOf(const QJsonValue& value) {
  return value.isDouble() ? QString::number(value.toInt()) : value.toString();
}

// An empty field says nothing.
QJsonValue TextIn(const QLineEdit& field) {
  const QString text = field.text().trimmed();
  return text.isEmpty() ? QJsonValue(QJsonValue::Undefined) : QJsonValue(text);
}

QJsonValue NumberIn(const QLineEdit& field) {
  bool isNumber = false;
  const int number = field.text().toInt(&isNumber);
  return isNumber ? QJsonValue(number) : TextIn(field);
}

void Put(QJsonObject& object, const char* key, const QJsonValue& value) {
  if (value.isUndefined()) {
    object.remove(QLatin1String(key));
  } else {
    object[QLatin1String(key)] = value;
  }
}

void TakeNumbersOnly(QLineEdit& field, int minimum, int maximum) {
  field.setValidator(new QIntValidator(minimum, maximum, &field));
}

}  // namespace

ProfileEditor::ProfileEditor(const ProfileDocument& document, const QJsonObject& entry, Apply apply,
                             QWidget* parent)
    : QDialog(parent),
      document_(document),
      entry_(entry),
      apply_(std::move(apply)),
      form_(new QFormLayout),
      name_(AddField(tr("&Name"), TextOf(entry["name"]))),
      family_(new QComboBox),
      model_(AddField(tr("&Model"), TextOf(entry["model"]))),
      dialogType_(AddField(tr("Dialog &type"), TextOf(entry["dialogType"]))),
      modelCode_(AddField(tr("Model cod&e"), TextOf(entry["modelCode"]))),
      link_(new QComboBox),
      connection_(new QComboBox),
      rows_(new QScrollArea),
      error_(new QLabel) {
  setWindowTitle(entry.isEmpty() ? tr("Add Projector") : tr("Edit Projector"));
  TakeNumbersOnly(*dialogType_, 1, 5);
  TakeNumbersOnly(*modelCode_, 0, std::numeric_limits<int>::max());
  family_->addItem(tr("None"), QString());
  for (const QString& name : document.Families()) family_->addItem(name, name);
  family_->setCurrentIndex(family_->findData(entry["like"].toString()));
  form_->insertRow(1, tr("&Family"), family_);
  AddLinks();
  AddConnectionFields();

  error_->setWordWrap(true);
  error_->setTextFormat(Qt::PlainText);
  error_->setTextInteractionFlags(Qt::TextSelectableByMouse);
  error_->hide();
  auto* buttons = new QDialogButtonBox(QDialogButtonBox::Ok | QDialogButtonBox::Cancel);
  auto* contents = new QWidget;
  form_->setContentsMargins({});
  contents->setLayout(form_);
  rows_->setFrameShape(QFrame::NoFrame);
  rows_->setFocusPolicy(Qt::NoFocus);
  rows_->setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
  rows_->setWidgetResizable(true);
  rows_->setWidget(contents);
  auto* layout = new QVBoxLayout(this);
  layout->addWidget(rows_);
  layout->addWidget(error_);
  layout->addWidget(buttons);

  connect(buttons, &QDialogButtonBox::accepted, this, &ProfileEditor::accept);
  connect(buttons, &QDialogButtonBox::rejected, this, &ProfileEditor::reject);
  connect(family_, &QComboBox::currentIndexChanged, this, &ProfileEditor::ShowFamily);
  connect(link_, &QComboBox::activated, this, &ProfileEditor::ChooseFittingConnection);
  connect(connection_, &QComboBox::currentIndexChanged, this, &ProfileEditor::ShowConnectionFields);
  ShowFamily();
  ShowConnectionFields();
  name_->setFocus();
}

QLineEdit* ProfileEditor::AddField(const QString& caption, const QString& text) {
  auto* field = new QLineEdit(text);
  field->setMinimumWidth(field->fontMetrics().averageCharWidth() * kFieldWidth);
  form_->addRow(caption, field);
  return field;
}

void ProfileEditor::AddLinks() {
  link_->addItem(tr("As its family"), QString());
  link_->addItem(tr("Simulated"), QStringLiteral("simulated"));
  link_->addItem(tr("Network"), kNetwork);
  link_->addItem(QStringLiteral("PJLink"), kPjLink);
  link_->addItem(tr("Serial port"), kSerial);
  link_->setCurrentIndex(link_->findData(entry_["link"].toString()));
  form_->addRow(tr("&Reached through"), link_);
}

// A connection of a kind that this dialog does not know is offered as it is.
void ProfileEditor::AddConnectionFields() {
  const QJsonObject written = entry_["connection"].toObject();
  connection_->addItem(tr("As its family"), QString());
  connection_->addItem(tr("Network"), kNetwork);
  connection_->addItem(tr("Serial port"), kSerial);
  const QString kind = written.isEmpty() ? QString() : written.begin().key();
  if (connection_->findData(kind) < 0) connection_->addItem(kind, kind);
  connection_->setCurrentIndex(entry_.isEmpty() ? 1 : connection_->findData(kind));
  form_->addRow(tr("Connect&ion"), connection_);

  const QJsonObject network = written[kNetwork].toObject();
  const QJsonObject serial = written[kSerial].toObject();
  address_ = AddField(tr("&Address"), TextOf(network["address"]));
  networkPort_ = AddField(tr("&Port"), TextOf(network["port"]));
  secret_ = AddField(tr("Pass&word"), TextOf(network["secret"]));
  secret_->setEchoMode(QLineEdit::PasswordEchoOnEdit);
  serialPort_ = AddField(tr("Port n&umber"), TextOf(serial["port"]));
  device_ = AddField(tr("&Device"), TextOf(serial["device"]));
  baud_ = AddField(tr("&Baud"), TextOf(serial["baud"]));
  TakeNumbersOnly(*networkPort_, 1, 65535);
  TakeNumbersOnly(*serialPort_, 1, 256);
  TakeNumbersOnly(*baud_, 1, 4'000'000);
}

void ProfileEditor::ShowFamily() {
  const QJsonObject family = document_.Family(family_->currentData().toString());
  model_->setPlaceholderText(TextOf(family["model"]));
  dialogType_->setPlaceholderText(TextOf(family["dialogType"]));
  modelCode_->setPlaceholderText(TextOf(family["modelCode"]));
}

void ProfileEditor::ShowConnectionFields() {
  const QString kind = ConnectionKind();
  for (QLineEdit* field : {address_, networkPort_, secret_}) {
    form_->setRowVisible(field, kind == kNetwork);
  }
  for (QLineEdit* field : {serialPort_, device_, baud_}) {
    form_->setRowVisible(field, kind == kSerial);
  }
  GiveRoom();
}

// As high as the rows, or as the screen allows: then they scroll.
void ProfileEditor::GiveRoom() {
  const QSize wanted = form_->sizeHint();
  rows_->setMinimumSize(wanted.width() + rows_->verticalScrollBar()->sizeHint().width(), 1);
  const int others = error_->heightForWidth(rows_->minimumWidth()) * !error_->isHidden() +
                     layout()->minimumSize().height();
  const int room = screen()->availableGeometry().height() - kFrameHeight - others;
  rows_->setMinimumHeight(std::min(wanted.height(), room));
}

// The way that was chosen needs a connection of its kind.
void ProfileEditor::ChooseFittingConnection() {
  const QString link = link_->currentData().toString();
  const QString needed = link == kPjLink ? kNetwork : link;
  if (needed != kNetwork && needed != kSerial) return;
  const QJsonObject ofFamily =
      document_.Family(family_->currentData().toString())["connection"].toObject();
  const bool fits =
      ConnectionKind().isEmpty() ? ofFamily.contains(needed) : ConnectionKind() == needed;
  if (!fits) connection_->setCurrentIndex(connection_->findData(needed));
}

QString ProfileEditor::ConnectionKind() const { return connection_->currentData().toString(); }

QJsonValue ProfileEditor::Connection() const {
  const QString kind = ConnectionKind();
  QJsonObject written = entry_["connection"].toObject();
  if (kind.isEmpty()) return QJsonValue::Undefined;
  if (kind != kNetwork && kind != kSerial) return written;
  QJsonObject parameters = written[kind].toObject();
  if (kind == kNetwork) {
    Put(parameters, "address", TextIn(*address_));
    Put(parameters, "port", NumberIn(*networkPort_));
    Put(parameters, "secret", TextIn(*secret_));
  } else {
    Put(parameters, "port", NumberIn(*serialPort_));
    Put(parameters, "device", TextIn(*device_));
    Put(parameters, "baud", NumberIn(*baud_));
  }
  return QJsonObject{{kind, parameters}};
}

JsonEdit::Members ProfileEditor::Changes() const {
  const QString family = family_->currentData().toString();
  const QString link = link_->currentData().toString();
  JsonEdit::Members all{
      {"name", TextIn(*name_)},
      {"model", TextIn(*model_)},
      {"like", family.isEmpty() ? QJsonValue(QJsonValue::Undefined) : QJsonValue(family)},
      {"dialogType", NumberIn(*dialogType_)},
      {"modelCode", NumberIn(*modelCode_)},
      {"connection", Connection()},
      {"link", link.isEmpty() ? QJsonValue(QJsonValue::Undefined) : QJsonValue(link)},
  };
  std::erase_if(all, [this](const JsonEdit::Member& member) {
    return member.value == entry_.value(member.key);
  });
  return all;
}

void ProfileEditor::accept() {
  const QString error =
      name_->text().trimmed().isEmpty() ? tr("The projector needs a name.") : apply_(Changes());
  if (error.isEmpty()) return QDialog::accept();
  error_->setText(error);
  error_->show();
  GiveRoom();
}
