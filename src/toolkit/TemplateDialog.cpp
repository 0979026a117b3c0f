#include "toolkit/TemplateDialog.h"

#include <algorithm>
#include <utility>
#include <vector>

#include <QEvent>
#include <QLabel>
#include <QLayout>
#include <QLineEdit>
#include <QPushButton>

#include "toolkit/Contrast.h"
#include "toolkit/FittedScroll.h"
#include "toolkit/Flash.h"
#include "toolkit/ResourceModule.h"
#include "toolkit/TemplateControls.h"
#include "toolkit/TemplateRows.h"

namespace AdvancedControl {

namespace {

bool HoldsTab(const RowTemplate& row) {
  return std::ranges::any_of(row.controls,
                             [](const auto& control) { return control.kind == ControlKind::Tab; });
}

bool IsUsableWhileBusy(const DialogTemplate& dialog, int id) {
  return std::ranges::any_of(dialog.rows, [id](const RowTemplate& row) {
    return std::ranges::any_of(row.controls, [id](const ControlTemplate& control) {
      return control.id == id &&
             (control.kind == ControlKind::Close || control.kind == ControlKind::Tab);
    });
  });
}

// Alt+C closes the dialog in every language; a caption without a C gets "(C)" appended.
void AssignMnemonics(const TemplateDialog& dialog) {
  for (const RowTemplate& row : dialog.Template()->rows) {
    if (row.controls.front().kind != ControlKind::Close) continue;
    auto& close = dialog.Item<QPushButton>(row.controls.front().id);
    QString text = close.text();
    if (text.contains(QLatin1Char('&'))) continue;
    close.setAccessibleName(text);
    const auto letter = text.indexOf(QLatin1Char('C'), 0, Qt::CaseInsensitive);
    close.setText(letter < 0 ? text + QStringLiteral("(&C)")
                             : text.insert(letter, QLatin1Char('&')));
  }
}

}  // namespace

TemplateDialog::TemplateDialog(int templateNumber, CWnd* parent)
    : QDialog(parent),
      templateNumber_(templateNumber),
      rows_(std::make_unique<TemplateRows>(*this)) {}

TemplateDialog::~TemplateDialog() = default;

bool TemplateDialog::BuildControls() {
  // If the dialog ran before, the controls of that run still exist.
  for (const auto& [id, control] : std::exchange(controls_, {})) delete control;
  rows_->Clear();

  template_ = ResourceChain::FindDialog(templateNumber_);
  if (template_ == nullptr) return false;
  rows_->Use(*template_);
  setWindowTitle(QString::fromUtf8(template_->caption));
  for (const RowTemplate& row : template_->rows) {
    std::vector<QWidget*> controls;
    for (const ControlTemplate& control : row.Present()) {
      QWidget* widget = MakeControl(control, this);
      controls.push_back(widget);
      controls_[control.id] = widget;
    }
    rows_->Add(std::move(controls));
  }
  // A dialog with tabs lays out its pages and controls itself.
  if (std::ranges::none_of(template_->rows, HoldsTab)) rows_->Arrange();
  return true;
}

// Done when shown, because setting a palette costs time for each control, and most pages are never
// shown. A dialog with tabs has nothing of its own to disable.
void TemplateDialog::MakeDisabledTextsReadable() {
  if (!isVisible() || layout() == nullptr) return;
  const QPalette readable = WithReadableDisabledTexts(palette());
  if (readable != palette()) setPalette(readable);
}

void TemplateDialog::changeEvent(QEvent* event) {
  QDialog::changeEvent(event);
  if (event->type() == QEvent::PaletteChange) MakeDisabledTextsReadable();
}

void TemplateDialog::showEvent(QShowEvent* event) {
  QDialog::showEvent(event);
  MakeDisabledTextsReadable();
}

void TemplateDialog::FinishLayout() {
  UpdateRows();
  AssignMnemonics(*this);
  rows_->FitToScreen();
}

void TemplateDialog::UpdateRows() { rows_->Update(); }

bool TemplateDialog::IsScrolled() const { return rows_->AreScrolled(); }

bool TemplateDialog::AcceptsInputWhileBusy(const QWidget& target) const {
  for (const QWidget* part = &target; part != nullptr && part != this;
       part = part->parentWidget()) {
    if (const auto* page = qobject_cast<const TemplateDialog*>(part)) {
      return page->KeepsInput(target);
    }
    const auto control =
        std::ranges::find(controls_, part, [](const auto& numbered) { return numbered.second; });
    if (control == controls_.end()) continue;
    return IsUsableWhileBusy(*template_, control->first) || KeepsInput(*part);
  }
  return true;
}

QWidget* TemplateDialog::GetDlgItem(int id) const {
  const auto found = controls_.find(id);
  return found == controls_.end() ? nullptr : found->second;
}

void TemplateDialog::NoSuchControl(int id) const {
  qFatal("dialog %d has no control %d of the kind asked for", templateNumber_, id);
}

void TemplateDialog::ShowRow(int id, bool present) {
  if (!rows_->Show(GetDlgItem(id), present)) NoSuchControl(id);  // unreachable: ends the process
}

QRect TemplateDialog::RowRect(int id) const {
  QRect rect;
  for (const QWidget* control : rows_->ControlsBeside(GetDlgItem(id))) {
    rect = rect.united(control->geometry());
  }
  return rect;
}

void TemplateDialog::Highlight(int id) {
  QWidget* control = GetDlgItem(id);
  if (control == nullptr || !control->isVisible()) return;
  QWidget& parent = *control->parentWidget();
  for (QWidget* area = &parent; area != nullptr; area = area->parentWidget()) {
    if (auto* scroll = qobject_cast<FittedScroll*>(area)) scroll->ScrollIntoView(*control);
  }
  Flash(parent, RowRect(id));
}

void TemplateDialog::GreyCaption(int id) {
  std::vector<QWidget*> captions;
  bool operable = false;
  bool enabled = false;
  for (QWidget* control : rows_->ControlsBeside(GetDlgItem(id))) {
    if (qobject_cast<QLabel*>(control) != nullptr) {
      captions.push_back(control);
    } else if (qobject_cast<QLineEdit*>(control) == nullptr && !control->isHidden()) {
      operable = true;
      enabled = enabled || control->isEnabledTo(this);
    }
  }
  if (!operable) return;
  for (QWidget* caption : captions) caption->setEnabled(enabled);
}

void TemplateDialog::ShowNotice(const QString& text) {
  auto* notice = new QLabel(text, this);
  controls_[kNoticeId] = notice;
  rows_->PlaceNotice(*notice);
}

void TemplateDialog::PlaceBesideClose(QWidget& widget) { rows_->PlaceBesideClose(widget); }

QSize TemplateDialog::DialogSize() const {
  QSize size =
      template_ != nullptr ? FromDialogUnits(*this, template_->width, template_->height) : QSize();
  if (layout() != nullptr) size = size.expandedTo(layout()->totalSizeHint());
  return size;
}

}  // namespace AdvancedControl
