#include "app/desktop/profiles/ProfileEditor.h"

#include <algorithm>
#include <limits>
#include <utility>

#include <QAccessible>
#include <QCheckBox>
#include <QCompleter>
#include <QDialogButtonBox>
#include <QFormLayout>
#include <QIntValidator>
#include <QLabel>
#include <QLineEdit>
#include <QLocale>
#include <QPushButton>
#include <QRegularExpression>
#include <QScreen>
#include <QScrollArea>
#include <QScrollBar>
#include <QVBoxLayout>

#include "app/desktop/Mnemonic.h"
#include "app/desktop/profiles/ConnectionTest.h"
#include "app/desktop/profiles/LinkNames.h"
#include "app/desktop/profiles/ProfileDocument.h"
#include "toolkit/CComboBox.h"
#include "toolkit/Icons.h"

namespace {

constexpr int kFrameHeight = 40;  // a guess until it is shown
constexpr int kFieldWidth = 26;   // in average characters

QString TextOf(const QJsonValue& value) {
  return value.isDouble() ? QString::number(value.toInt()) : value.toString();
}

/// The value at a path such as "connection.network.port".
QJsonValue ValueAt(const QJsonObject& entry, const QString& path) {
  QJsonValue value = entry;
  for (const QString& key : path.split(QLatin1Char('.'))) value = value.toObject().value(key);
  return value;
}

bool IsBlank(const QLineEdit* field) { return field->text().trimmed().isEmpty(); }

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
      name_(AddField(tr("&Name"), "name")),
      family_(AddList(tr("&Family"), "like")),
      model_(AddField(tr("&Model"), "model")),
      dialogType_(AddField(tr("Dialog &type"), "dialogType")),
      modelCode_(AddField(tr("Model cod&e"), "modelCode")),
      link_(AddList(tr("&Reached through"), "link")),
      connection_(AddList(tr("Connect&ion"), "connection")),
      address_(AddField(tr("&Address"), "connection.network.address")),
      networkPort_(AddField(tr("&Port"), "connection.network.port")),
      secret_(AddField(tr("Pass&word"), "connection.network.secret")),
      serialPort_(AddField(tr("Port n&umber"), "connection.serial.port")),
      device_(AddField(tr("&Device"), "connection.serial.device")),
      baud_(AddField(tr("&Baud"), "connection.serial.baud")),
      rows_(new QScrollArea),
      error_(new QLabel),
      more_(new QCheckBox(tr("All &fields of the model"))),
      test_(new ConnectionTest([this] { return Address(); })),
      models_(document.Models()) {
  setWindowTitle(entry.isEmpty() ? tr("Add Projector") : tr("Edit Projector"));
  TakeNumbersOnly(*dialogType_, 1, 5);
  TakeNumbersOnly(*modelCode_, 0, std::numeric_limits<int>::max());
  TakeNumbersOnly(*networkPort_, 1, 65535);
  TakeNumbersOnly(*serialPort_, 1, 256);
  TakeNumbersOnly(*baud_, 1, 4'000'000);
  secret_->setEchoMode(QLineEdit::PasswordEchoOnEdit);
  FillLists();
  auto* names = new QCompleter(models_.keys(), model_);
  names->setCaseSensitivity(Qt::CaseInsensitive);
  names->setFilterMode(Qt::MatchContains);
  model_->setCompleter(names);
  form_->insertRow(3, QString(), more_);
  form_->addRow(QString(), test_);

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
  RemoveForeignButtonIcons(*this);

  connect(buttons, &QDialogButtonBox::accepted, this, &ProfileEditor::accept);
  connect(buttons, &QDialogButtonBox::rejected, this, &ProfileEditor::reject);
  if (document_.IsReadOnly()) {
    const QPushButton* saveAs =
        buttons->addButton(tr("Save Profiles As…"), QDialogButtonBox::ActionRole);
    connect(saveAs, &QPushButton::clicked, this, [this] {
      reject();
      Q_EMIT SaveAsWanted();
    });
    error_->setText(tr("%1 cannot be changed.").arg(document_.FileName()));
    error_->show();
  }
  connect(model_, &QLineEdit::textChanged, this, &ProfileEditor::TakeModel);
  connect(more_, &QCheckBox::toggled, this, &ProfileEditor::ShowModelFields);
  for (QLineEdit* field : {address_, networkPort_, secret_})
    connect(field, &QLineEdit::textChanged, test_, &ConnectionTest::Clear);
  connect(address_, &QLineEdit::textChanged, this, &ProfileEditor::CheckAddress);
  connect(family_, &QComboBox::currentIndexChanged, this, &ProfileEditor::ShowFamily);
  connect(link_, &QComboBox::activated, this, [this] {
    chosen_.insert(link_);
    ChooseFittingConnection();
    FillPort();
  });
  connect(connection_, &QComboBox::activated, this, [this] { chosen_.insert(connection_); });
  connect(connection_, &QComboBox::currentIndexChanged, this, &ProfileEditor::ShowConnectionFields);
  ShowFamily();
  ShowConnectionFields();
  ShowModelFields();
  FillPort();
  name_->setFocus();
}

void ProfileEditor::AskForCopy(const QString& name) {
  setWindowTitle(tr("Duplicate Projector"));
  name_->setText(name);
  address_->clear();
  if (address_->isVisibleTo(this)) address_->setFocus();
}

// A model that the file knows has the numbers that nobody knows.
void ProfileEditor::TakeModel() {
  const auto model = models_.constFind(model_->text().trimmed());
  if (model == models_.constEnd()) return;
  modelMembers_ = *model;
  family_->setCurrentIndex(std::max(0, family_->findData(modelMembers_.take("like").toString())));
  dialogType_->setText(TextOf(modelMembers_.take("dialogType")));
  modelCode_->setText(TextOf(modelMembers_.take("modelCode")));
  modelMembers_.remove("model");
}

void ProfileEditor::ShowModelFields() {
  for (QWidget* field : {static_cast<QWidget*>(family_), static_cast<QWidget*>(dialogType_),
                         static_cast<QWidget*>(modelCode_)}) {
    form_->setRowVisible(field, more_->isChecked());
  }
  FitHeight();
}

QLineEdit* ProfileEditor::AddField(const QString& caption, const char* path) {
  auto* field = new QLineEdit(TextOf(ValueAt(entry_, path)));
  field->setObjectName(path);
  field->setMinimumWidth(field->fontMetrics().averageCharWidth() * kFieldWidth);
  form_->addRow(caption, field);
  return field;
}

CComboBox* ProfileEditor::AddList(const QString& caption, const char* path) {
  auto* list = new CComboBox;
  list->setObjectName(path);
  form_->addRow(caption, list);
  return list;
}

// A connection of an unknown kind is added to the list unchanged.
void ProfileEditor::FillLists() {
  family_->addItem(tr("None"), QString());
  for (const QString& name : document_.Families()) family_->addItem(name, name);
  family_->setCurrentIndex(family_->findData(entry_["like"].toString()));

  link_->addItem(tr("As its family"), QString());
  link_->addItem(tr("Simulated"), QStringLiteral("simulated"));
  link_->addItem(tr("Network"), kNetwork);
  link_->addItem(QStringLiteral("PJLink"), kPjLink);
  link_->addItem(tr("Serial port"), kSerial);
  link_->setCurrentIndex(link_->findData(entry_["link"].toString()));

  connection_->addItem(tr("As its family"), QString());
  connection_->addItem(tr("Network"), kNetwork);
  connection_->addItem(tr("Serial port"), kSerial);
  const QJsonObject written = entry_["connection"].toObject();
  const QString kind = written.isEmpty() ? QString() : written.begin().key();
  if (connection_->findData(kind) < 0) connection_->addItem(kind, kind);
  connection_->setCurrentIndex(connection_->findData(kind));
}

QJsonObject ProfileEditor::Family() const {
  return document_.Family(family_->currentData().toString());
}

void ProfileEditor::ShowFamily() {
  const QJsonObject family = Family();
  model_->setPlaceholderText(TextOf(family["model"]));
  dialogType_->setPlaceholderText(TextOf(family["dialogType"]));
  modelCode_->setPlaceholderText(TextOf(family["modelCode"]));
  if (!entry_.isEmpty()) return;
  // Until the user chooses the connection of a new projector, it is that of its family, or else
  // PJLink, which most projectors speak.
  for (const auto& [list, usual] : {std::pair(link_, kPjLink), std::pair(connection_, kNetwork)}) {
    if (chosen_.contains(list)) continue;
    list->setCurrentIndex(list->findData(family.contains(list->objectName()) ? QString() : usual));
  }
  if (!chosen_.contains(connection_)) ChooseFittingConnection();
}

// As high as the rows. If the screen is too small for them, they scroll.
void ProfileEditor::FitHeight() {
  const QSize wanted = form_->sizeHint();
  rows_->setMinimumSize(wanted.width() + rows_->verticalScrollBar()->sizeHint().width(), 1);
  error_->setMinimumHeight(std::max(0, error_->heightForWidth(rows_->minimumWidth())));
  const int others = layout()->minimumSize().height();
  const int availableHeight = screen()->availableGeometry().height() - kFrameHeight - others;
  rows_->setMinimumHeight(std::min(wanted.height(), availableHeight));
}

// An unchanged field gives exactly the value in the file, an empty one no value.
QJsonValue ProfileEditor::ValueOf(const QLineEdit* field) const {
  QJsonValue written = ValueAt(entry_, field->objectName());
  if (field->text() == TextOf(written)) return written;
  const QString text = field == secret_ ? field->text() : field->text().trimmed();
  if (text.isEmpty()) return QJsonValue::Undefined;
  bool isNumber = false;
  const int number = text.toInt(&isNumber);
  return isNumber && field->validator() != nullptr ? QJsonValue(number) : QJsonValue(text);
}

JsonEdit::Members ProfileEditor::Changes() const {
  const QString family = family_->currentData().toString();
  const QString link = link_->currentData().toString();
  JsonEdit::Members all{
      {"name", ValueOf(name_)},
      {"model", ValueOf(model_)},
      {"like", family.isEmpty() ? QJsonValue(QJsonValue::Undefined) : QJsonValue(family)},
      {"dialogType", ValueOf(dialogType_)},
      {"modelCode", ValueOf(modelCode_)},
      {"connection", Connection()},
      {"link", link.isEmpty() ? QJsonValue(QJsonValue::Undefined) : QJsonValue(link)},
  };
  for (auto member = modelMembers_.constBegin(); member != modelMembers_.constEnd(); ++member)
    all.push_back({member.key(), *member});
  std::erase_if(all, [this](const JsonEdit::Member& member) {
    return member.value == entry_.value(member.key);
  });
  return all;
}

QString ProfileEditor::CaptionOf(QWidget* field) const {
  return WithoutMnemonic(qobject_cast<QLabel*>(form_->labelForField(field))->text());
}

std::vector<QLineEdit*> ProfileEditor::Missing() const {
  std::vector<QLineEdit*> needed{name_};
  for (QLineEdit* field : {model_, dialogType_, modelCode_}) {
    if (field->placeholderText().isEmpty()) needed.push_back(field);
  }
  if (ConnectionKind() == kNetwork) needed.insert(needed.end(), {address_, networkPort_});
  if (ConnectionKind() == kSerial && IsBlank(device_)) needed.push_back(serialPort_);
  std::erase_if(needed, [](const QLineEdit* field) { return !IsBlank(field); });
  return needed;
}

void ProfileEditor::accept() {
  if (const std::vector<QLineEdit*> missing = Missing(); !missing.empty()) {
    QStringList captions;
    for (QLineEdit* field : missing) {
      if (field == dialogType_ || field == modelCode_) more_->setChecked(true);
      captions += CaptionOf(field);
    }
    const QString all = QLocale().createSeparatedList(captions);
    return ShowError(tr("Still to be filled in: %1").arg(all), missing.front());
  }
  const QString error = apply_(Changes());
  if (error.isEmpty()) return QDialog::accept();
  // Errors in the file name a member; the dialog shows the row's caption instead.
  static const QRegularExpression place(QStringLiteral(R"(^.*?projectors\[\d+\]\.([\w.]+): )"));
  const QRegularExpressionMatch found = place.match(error);
  QWidget* row = found.hasMatch() ? rows_->findChild<QWidget*>(found.captured(1)) : nullptr;
  if (row != nullptr && !row->isVisibleTo(this)) more_->setChecked(true);
  if (row == nullptr) return ShowError(error, nullptr);
  ShowError(tr("%1: %2").arg(CaptionOf(row), error.mid(found.capturedEnd())), row);
}

void ProfileEditor::ShowError(const QString& error, QWidget* row) {
  error_->setText(error);
  error_->show();
  FitHeight();
  if (row != nullptr) {
    row->setFocus();
    rows_->ensureWidgetVisible(row);
  }
  QAccessibleEvent event(error_, QAccessible::Alert);
  QAccessible::updateAccessibility(&event);
}
