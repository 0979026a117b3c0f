#include "app/desktop/profiles/ProfileEditor.h"

#include <algorithm>
#include <utility>

#include <QAccessible>
#include <QDialogButtonBox>
#include <QLabel>
#include <QLineEdit>
#include <QLocale>
#include <QRegularExpression>
#include <QScreen>
#include <QVBoxLayout>

#include "app/desktop/profiles/ConnectionFields.h"
#include "app/desktop/profiles/EntryForm.h"
#include "app/desktop/profiles/ModelFields.h"
#include "toolkit/Icons.h"

namespace {

constexpr int kFrameHeight = 40;  // a guess until it is shown

}  // namespace

ProfileEditor::ProfileEditor(const ProfileDocument& document, const QJsonObject& entry, Apply apply,
                             QWidget* parent)
    : QDialog(parent),
      apply_(std::move(apply)),
      form_(new EntryForm(entry)),
      name_(form_->AddField(tr("&Name"), "name")),
      model_(new ModelFields(document, *form_)),
      connection_(new ConnectionFields(*model_, *form_)),
      error_(new QLabel) {
  setWindowTitle(entry.isEmpty() ? tr("Add Projector") : tr("Edit Projector"));
  error_->setWordWrap(true);
  error_->setTextFormat(Qt::PlainText);
  error_->setTextInteractionFlags(Qt::TextSelectableByMouse);
  error_->hide();
  auto* buttons = new QDialogButtonBox(QDialogButtonBox::Ok | QDialogButtonBox::Cancel);
  auto* layout = new QVBoxLayout(this);
  layout->addWidget(form_);
  layout->addWidget(error_);
  layout->addWidget(buttons);
  RemoveForeignButtonIcons(*this);

  connect(buttons, &QDialogButtonBox::accepted, this, &ProfileEditor::accept);
  connect(buttons, &QDialogButtonBox::rejected, this, &ProfileEditor::reject);
  connect(form_, &EntryForm::RowsChanged, this, &ProfileEditor::FitHeight);
  connect(connection_, &ConnectionFields::AddressChecked, this, [this](const QString& error) {
    error_->setText(error);
    error_->setVisible(!error.isEmpty());
    FitHeight();
  });
  FitHeight();
  name_->setFocus();
}

void ProfileEditor::AskForCopy(const QString& name) {
  setWindowTitle(tr("Duplicate Projector"));
  name_->setText(name);
  connection_->AskForAddress();
}

// As high as the rows. If the screen is too small for them, they scroll.
void ProfileEditor::FitHeight() {
  const QSize wanted = form_->WholeSize();
  form_->setMinimumSize(wanted.width(), 1);
  error_->setMinimumHeight(std::max(0, error_->heightForWidth(form_->minimumWidth())));
  const int others = layout()->minimumSize().height();
  const int availableHeight = screen()->availableGeometry().height() - kFrameHeight - others;
  form_->setMinimumHeight(std::min(wanted.height(), availableHeight));
}

JsonEdit::Members ProfileEditor::Changes() const {
  JsonEdit::Members all{{"name", form_->ValueOf(name_)}};
  for (const JsonEdit::Members& members : {model_->Members(), connection_->Members()})
    all.insert(all.end(), members.begin(), members.end());
  std::erase_if(all, [this](const JsonEdit::Member& member) {
    return member.value == form_->Entry().value(member.key);
  });
  return all;
}

std::vector<QLineEdit*> ProfileEditor::Missing() const {
  std::vector<QLineEdit*> missing;
  if (EntryForm::IsBlank(name_)) missing.push_back(name_);
  for (const auto& fields : {model_->Missing(), connection_->Missing()})
    missing.insert(missing.end(), fields.begin(), fields.end());
  return missing;
}

void ProfileEditor::accept() {
  if (const std::vector<QLineEdit*> missing = Missing(); !missing.empty()) {
    QStringList captions;
    for (QLineEdit* field : missing) {
      if (!field->isVisibleTo(this)) model_->ShowAll();
      captions += form_->CaptionOf(field);
    }
    const QString all = QLocale().createSeparatedList(captions);
    return ShowError(tr("Still to be filled in: %1").arg(all), missing.front());
  }
  const QString error = apply_(Changes());
  if (error.isEmpty()) return QDialog::accept();
  // Errors in the file name a member; the dialog shows the row's caption instead.
  static const QRegularExpression place(QStringLiteral(R"(^.*?projectors\[\d+\]\.([\w.]+): )"));
  const QRegularExpressionMatch found = place.match(error);
  QWidget* row = found.hasMatch() ? form_->findChild<QWidget*>(found.captured(1)) : nullptr;
  if (row == nullptr) return ShowError(error, nullptr);
  if (!row->isVisibleTo(this)) model_->ShowAll();
  ShowError(tr("%1: %2").arg(form_->CaptionOf(row), error.mid(found.capturedEnd())), row);
}

void ProfileEditor::ShowError(const QString& error, QWidget* row) {
  error_->setText(error);
  error_->show();
  FitHeight();
  if (row != nullptr) {
    row->setFocus();
    form_->ensureWidgetVisible(row);
  }
  QAccessibleEvent event(error_, QAccessible::Alert);
  QAccessible::updateAccessibility(&event);
}
