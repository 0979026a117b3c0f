#include "app/desktop/profiles/ModelFields.h"

#include <algorithm>
#include <limits>
#include <utility>

#include <QCheckBox>
#include <QCompleter>
#include <QIntValidator>
#include <QLineEdit>

#include "app/desktop/profiles/EntryForm.h"
#include "app/desktop/profiles/ProfileDocument.h"
#include "toolkit/CComboBox.h"

ModelFields::ModelFields(const ProfileDocument& document, EntryForm& form)
    : QObject(&form),
      document_(document),
      form_(form),
      family_(form.AddList(tr("&Family"), "like")),
      models_(document.Models()),
      model_(form.AddChoice(tr("&Model"), "model", models_.keys())),
      more_(new QCheckBox(tr("All fie&lds of the model"))) {
  form.AddWidget(more_);
  dialogType_ = form.AddField(tr("Dialog t&ype"), "dialogType");
  modelCode_ = form.AddField(tr("Model cod&e"), "modelCode");
  dialogType_->setValidator(new QIntValidator(1, 5, dialogType_));
  modelCode_->setValidator(new QIntValidator(0, std::numeric_limits<int>::max(), modelCode_));
  FillFamilies();
  OfferModels();
  connect(model_, &QLineEdit::textChanged, this, &ModelFields::TakeModel);
  connect(more_, &QCheckBox::toggled, this, &ModelFields::ShowRows);
  connect(family_, &QComboBox::currentIndexChanged, this, &ModelFields::ShowFamily);
  ShowFamily();
  ShowRows();
}

void ModelFields::FillFamilies() {
  family_->addItem(tr("None"), QString());
  for (const QString& name : document_.Families()) family_->addItem(name, name);
  family_->setCurrentIndex(family_->findData(form_.Entry()["like"].toString()));
}

void ModelFields::OfferModels() {
  auto* names = new QCompleter(models_.keys(), model_);
  names->setCaseSensitivity(Qt::CaseInsensitive);
  names->setFilterMode(Qt::MatchContains);
  model_->setCompleter(names);
}

// The numbers of a known model come from the file. When its name was only the beginning of another
// one, they go again, except for those that the user has typed since.
void ModelFields::TakeModel() {
  const auto model = models_.constFind(model_->text().trimmed());
  const bool isKnown = model != models_.constEnd();
  if (!isKnown && !before_) return;
  if (!before_)
    before_ = {{"like", family_->currentData().toString()},
               {"dialogType", dialogType_->text()},
               {"modelCode", modelCode_->text()}};
  modelMembers_ = isKnown ? *model : *std::exchange(before_, std::nullopt);
  family_->setCurrentIndex(std::max(0, family_->findData(modelMembers_.take("like").toString())));
  for (QLineEdit* field : {dialogType_, modelCode_}) {
    const QString text = EntryForm::TextOf(modelMembers_.take(field->objectName()));
    if (isKnown || !field->isModified()) field->setText(text);
  }
  modelMembers_.remove("model");
}

void ModelFields::ShowFamily() {
  const QJsonObject family = Family();
  model_->setPlaceholderText(EntryForm::TextOf(family["model"]));
  dialogType_->setPlaceholderText(EntryForm::TextOf(family["dialogType"]));
  modelCode_->setPlaceholderText(EntryForm::TextOf(family["modelCode"]));
  Q_EMIT FamilyChanged();
}

void ModelFields::ShowRows() {
  for (QWidget* field : {static_cast<QWidget*>(family_), static_cast<QWidget*>(dialogType_),
                         static_cast<QWidget*>(modelCode_)})
    form_.SetRowVisible(field, more_->isChecked());
}

void ModelFields::ShowAll() { more_->setChecked(true); }

QJsonObject ModelFields::Family() const {
  return document_.Family(family_->currentData().toString());
}

JsonEdit::Members ModelFields::Members() const {
  JsonEdit::Members all{
      {"model", form_.ValueOf(model_)},
      {"like", EntryForm::TextOrNothing(family_->currentData().toString())},
      {"dialogType", form_.ValueOf(dialogType_)},
      {"modelCode", form_.ValueOf(modelCode_)},
  };
  for (auto member = modelMembers_.constBegin(); member != modelMembers_.constEnd(); ++member)
    all.push_back({member.key(), *member});
  return all;
}

std::vector<QLineEdit*> ModelFields::Missing() const {
  std::vector<QLineEdit*> missing;
  for (QLineEdit* field : {model_, dialogType_, modelCode_})
    if (field->placeholderText().isEmpty() && EntryForm::IsBlank(field)) missing.push_back(field);
  return missing;
}
