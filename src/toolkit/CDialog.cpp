#include "toolkit/CDialog.h"

#include <algorithm>
#include <functional>
#include <utility>

#include <QCheckBox>
#include <QFontMetrics>
#include <QGridLayout>
#include <QKeyEvent>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QTabBar>

#include "toolkit/Accessibility.h"
#include "toolkit/CComboBox.h"
#include "toolkit/CSliderCtrl.h"
#include "toolkit/FittedScroll.h"
#include "toolkit/ResourceModule.h"
#include "toolkit/TemplateControls.h"

namespace {

constexpr int kColumnGap = 32;

bool Has(const DialogTemplate& dialog, auto predicate) {
  return std::ranges::any_of(dialog.rows, predicate);
}

bool HoldsTab(const RowTemplate& row) {
  return std::ranges::any_of(row.controls,
                             [](const auto& control) { return control.kind == ControlKind::Tab; });
}

struct Block {
  std::byte* begin;
  std::size_t size;
};

// Memory from CDialog::operator new in which no dialog has been constructed yet.
std::vector<Block>& NewBlocks() {
  static std::vector<Block> blocks;
  return blocks;
}

bool TakeNewBlock(const void* dialog) {
  const auto* at = static_cast<const std::byte*>(dialog);
  return std::erase_if(NewBlocks(), [at](const Block& block) {
           return !std::less<>()(at, block.begin) && std::less<>()(at, block.begin + block.size);
         }) > 0;
}

}  // namespace

CDialog::CDialog(int templateNumber, CWnd* owner)
    : QDialog(owner), templateNumber_(templateNumber), onHeap_(TakeNewBlock(this)) {
  InstallAccessibility();
}

void* CDialog::operator new(std::size_t size) {
  void* block = ::operator new(size);
  NewBlocks().push_back({static_cast<std::byte*>(block), size});
  return block;
}

void* CDialog::operator new(std::size_t size, const std::nothrow_t&) noexcept {
  try {
    return operator new(size);
  } catch (const std::bad_alloc&) {
    return nullptr;
  }
}

void CDialog::operator delete(void* dialog) {
  TakeNewBlock(dialog);  // still there if no dialog came to be constructed
  ::operator delete(dialog);
}

CDialog::~CDialog() {
  // Hiding takes the focus from a control, which may report to a handler that is gone by now.
  for (const auto& [id, control] : controls_) control->disconnect(this);
  Destroy();
}

bool CDialog::Create() {
  if (isWindow() && busy_ > 0) return false;  // its controls are in use
  Destroy();
  // A dialog may be run again; the controls of its last run may have been in use until it closed.
  for (const auto& [id, control] : std::exchange(controls_, {})) delete control;
  rows_.clear();
  waysOut_.clear();
  delete layout();
  delete scroll_;

  template_ = ResourceChain::FindDialog(templateNumber_);
  if (template_ == nullptr) return false;
  const Busy busy(this);
  created_ = true;
  if (isWindow()) Windows().push_back(this);
  orphaned_ = false;
  named_ = false;
  WatchOwner();
  BuildControls();
  DoDataExchange();
  ConnectNotifications();
  OnInitDialog();
  UpdateRows();
  GiveMnemonics();
  FitToScreen();
  return true;
}

// Alt+C closes in every language: where the caption has no C, it bears one behind it.
void CDialog::GiveMnemonics() {
  for (const RowTemplate& row : template_->rows) {
    if (row.controls.front().kind != ControlKind::Close) continue;
    auto& close = Item<QPushButton>(row.controls.front().id);
    QString text = close.text();
    if (text.contains(QLatin1Char('&'))) continue;
    close.setAccessibleName(text);
    const auto letter = text.indexOf(QLatin1Char('C'), 0, Qt::CaseInsensitive);
    close.setText(letter < 0 ? text + QStringLiteral("(&C)")
                             : text.insert(letter, QLatin1Char('&')));
  }
}

// A pop-up that the screen has no room for scrolls its rows; Close stays in sight.
void CDialog::FitToScreen() {
  if (!isWindow() || layout() == nullptr || scroll_ != nullptr) return;
  const QSize wanted = layout()->totalSizeHint();
  if (wanted == wanted.boundedTo(RoomOnScreen(*this))) return;
  auto* rows = new QWidget(this);
  rows->setLayout(layout());  // the controls come along
  auto* frame = new QVBoxLayout(this);
  frame->addWidget(scroll_ = new FittedScroll(rows, this));
  for (std::size_t i = 0; i < rows_.size(); ++i) {
    const ControlTemplate& close = template_->rows[i].controls.front();
    if (close.kind != ControlKind::Close) continue;
    rows_[i].grid->setRowMinimumHeight(rows_[i].gridRow, 0);
    rows_[i].grid = nullptr;
    frame->addWidget(GetDlgItem(close.id), 0, Qt::AlignRight);
  }
  frame->activate();
  const QSize outside = frame->totalSizeHint() - scroll_->sizeHint();
  resize(FittedToScreen(*this, rows->layout()->totalSizeHint() + outside));
}

void CDialog::RunHandler(const Notification& entry, CSliderCtrl* slider) {
  auto* top = qobject_cast<CDialog*>(window());
  const auto* button = qobject_cast<const QAbstractButton*>(GetDlgItem(entry.id));
  if (top != nullptr && top->busy_ > 0 && std::ranges::count(waysOut_, GetDlgItem(entry.id)) == 0) {
    if (button == nullptr || button->isCheckable()) top->OnStale();
    return;
  }
  const Busy busy(this);
  entry.handle(*this, slider);
}

// Whether a control of a busy dialog, or a part of it, takes input.
bool CDialog::Takes(const QWidget& target) const {
  for (const QWidget* part = &target; part != nullptr && part != this;
       part = part->parentWidget()) {
    if (qobject_cast<const CDialog*>(part) != nullptr) return false;  // a page
    const bool isControl = std::ranges::any_of(
        controls_, [part](const auto& control) { return control.second == part; });
    if (isControl) return std::ranges::count(waysOut_, part) > 0;
  }
  return true;
}

QWidget* CDialog::GetDlgItem(int id) const {
  const auto found = controls_.find(id);
  return found == controls_.end() ? nullptr : found->second;
}

void CDialog::NoSuchControl(int id) const {
  qFatal("dialog %d has no control %d of the kind asked for", templateNumber_, id);
}

CDialog::PlacedRow* CDialog::RowOf(int id) {
  QWidget* control = GetDlgItem(id);
  const auto row = std::ranges::find_if(rows_, [control](const PlacedRow& candidate) {
    return std::ranges::find(candidate.controls, control) != candidate.controls.end();
  });
  return control == nullptr || row == rows_.end() ? nullptr : &*row;
}

void CDialog::ShowRow(int id, bool present) {
  PlacedRow* row = RowOf(id);
  if (row == nullptr) NoSuchControl(id);
  row->present = present;
  for (QWidget* control : row->controls) control->setVisible(present);
  if (row->grid != nullptr) row->grid->setRowMinimumHeight(row->gridRow, present ? pitch_ : 0);
}

QRect CDialog::RowRect(int id) {
  QRect rect;
  if (const PlacedRow* row = RowOf(id); row != nullptr) {
    for (const QWidget* control : row->controls) rect = rect.united(control->geometry());
  }
  return rect;
}

void CDialog::GreyCaption(int id) {
  const PlacedRow* row = RowOf(id);
  if (row == nullptr) return;
  std::vector<QWidget*> captions;
  bool operable = false;
  bool enabled = false;
  for (QWidget* control : row->controls) {
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

void CDialog::ShowNotice(const QString& text) {
  auto* notice = new QLabel(text, this);
  notice->setMinimumHeight(FromDialogUnits(0, template_->rulerHeight).height());  // a row's place
  controls_[kNoticeId] = notice;
  auto* left = static_cast<QGridLayout*>(layout()->itemAt(0)->layout());
  left->addWidget(notice, 0, 0, 1, RowColumn::Count, Qt::AlignTop | Qt::AlignLeft);
}

QSize CDialog::FromDialogUnits(int width, int height) const {
  // Shaping the alphabet costs more than making several controls: once a font will do.
  static QString measuredFont;
  static QSize base;
  if (const QString key = font().key(); key != measuredFont) {
    const QFontMetrics metrics(font());
    const int alphabet = metrics.horizontalAdvance(
        QStringLiteral("ABCDEFGHIJKLMNOPQRSTUVWXYZabcdefghijklmnopqrstuvwxyz"));
    base = {(alphabet / 26 + 1) / 2, metrics.height()};
    measuredFont = key;
  }
  return {width * base.width() / 4, height * base.height() / 8};
}

QSize CDialog::DialogSize() const {
  QSize size =
      template_ != nullptr ? FromDialogUnits(template_->width, template_->height) : QSize();
  if (layout() != nullptr) size = size.expandedTo(layout()->totalSizeHint());
  return size;
}

void CDialog::BuildControls() {
  setWindowTitle(QString::fromUtf8(template_->caption));
  // A dialog of tabs places its pages and controls itself.
  const bool laidOut = !Has(*template_, HoldsTab);
  QGridLayout* left = nullptr;
  QGridLayout* right = nullptr;
  if (laidOut) {
    auto* columns = new QHBoxLayout(this);
    columns->setContentsMargins(isWindow() ? 16 : 0, isWindow() ? 12 : 0, isWindow() ? 16 : 0,
                                isWindow() ? 12 : 0);
    columns->setSpacing(kColumnGap);
    if (isWindow()) columns->setSizeConstraint(QLayout::SetFixedSize);  // follows absent rows
    columns->addLayout(left = MakeRowColumns(*this), 1);
    // Pages keep two columns even where only one is used, so that rows do not jump between tabs.
    if (!isWindow()) columns->addLayout(right = MakeRowColumns(*this), 1);
  }
  int leftRow = 0;
  int rightRow = 0;
  bool stretched = false;
  for (const RowTemplate& row : template_->rows) {
    PlacedRow placed{};
    for (const ControlTemplate& control : row.controls) {
      if (control.kind == ControlKind::None) break;
      QWidget* widget = MakeControl(control, this);
      placed.controls.push_back(widget);
      controls_[control.id] = widget;
      if (control.kind == ControlKind::Close || control.kind == ControlKind::Tab) {
        waysOut_.push_back(widget);
      }
      if (control.kind == ControlKind::Close && !Notifications().Names(control.id)) {
        connect(static_cast<QPushButton*>(widget), &QPushButton::clicked, this, &QDialog::accept);
      }
    }
    if (laidOut) {
      if (row.place == RowPlace::Bottom && !stretched) {
        left->setRowStretch(leftRow++, 1);
        stretched = true;
      }
      placed.grid = row.place == RowPlace::Right && right != nullptr ? right : left;
      placed.gridRow = placed.grid == left ? leftRow++ : rightRow++;
      PlaceRow(row, placed.controls, placed.grid, placed.gridRow);
    }
    rows_.push_back(std::move(placed));
  }
  if (left != nullptr && !stretched) left->setRowStretch(leftRow++, 1);
  if (left != nullptr && isWindow()) {
    // Absent rows make a window lower, but not narrower than its template.
    const QMargins margins = layout()->contentsMargins();
    const int width = FromDialogUnits(template_->width, 0).width();
    left->addItem(new QSpacerItem(width - margins.left() - margins.right(), 0), leftRow, 0, 1,
                  RowColumn::Count);
  }
  if (right != nullptr) right->setRowStretch(rightRow, 1);
}

void CDialog::ConnectNotifications() {
  for (const Notification& entry : Notifications().Entries()) {
    switch (entry.event) {
      case Notification::Event::Clicked:
        connect(&Item<QAbstractButton>(entry.id), &QAbstractButton::clicked, this,
                [this, &entry] { RunHandler(entry, nullptr); });
        break;
      case Notification::Event::SelChange:
        if (auto* tabs = qobject_cast<QTabBar*>(GetDlgItem(entry.id))) {
          connect(tabs, &QTabBar::currentChanged, this,
                  [this, &entry] { RunHandler(entry, nullptr); });
        } else {
          connect(&Item<QComboBox>(entry.id), &QComboBox::activated, this,
                  [this, &entry] { RunHandler(entry, nullptr); });
        }
        break;
      case Notification::Event::HScroll:
        for (const auto& [id, control] : controls_) {
          if (auto* slider = qobject_cast<CSliderCtrl*>(control)) {
            connect(slider, &CSliderCtrl::EndScroll, this,
                    [this, &entry, slider] { RunHandler(entry, slider); });
          }
        }
        break;
      case Notification::Event::Passive:
        break;
    }
  }
}

void CDialog::UpdateRows() {
  pitch_ = FromDialogUnits(0, template_->rulerHeight).height();
  int buttonWidth = 0;
  for (const PlacedRow& row : rows_) {
    if (!row.present) continue;
    for (const QWidget* control : row.controls) {
      pitch_ = std::max(pitch_, control->sizeHint().height() + 2);
    }
  }
  std::vector<QWidget*> buttons;
  for (const RowTemplate& row : template_->rows) {
    for (const ControlTemplate& control : row.controls) {
      if (control.kind != ControlKind::Button && control.kind != ControlKind::Close) continue;
      buttons.push_back(GetDlgItem(control.id));
      buttonWidth = std::max(buttonWidth, buttons.back()->sizeHint().width());
    }
  }
  for (QWidget* button : buttons) button->setMinimumWidth(buttonWidth);
  for (const PlacedRow& row : rows_) {
    if (row.grid != nullptr) row.grid->setRowMinimumHeight(row.gridRow, row.present ? pitch_ : 0);
  }
}

const NotificationMap& CDialog::Notifications() const {
  static const NotificationMap none{};
  return none;
}

void CDialog::setVisible(bool visible) {
  if (visible && orphaned_) return;
  // Not before it is seen: a dialog has many pages, and most are not.
  if (visible && template_ != nullptr && !std::exchange(named_, true)) NameControls(*this);
  // A page is part of its dialog: showing it must not move the focus or end an event loop.
  if (isWindow()) {
    QDialog::setVisible(visible);
  } else {
    QWidget::setVisible(visible);  // NOLINT(bugprone-parent-virtual-call)
  }
}

void CDialog::keyPressEvent(QKeyEvent* event) {
  if (!isWindow()) {
    event->ignore();
    return;
  }
  auto* button = qobject_cast<QPushButton*>(focusWidget());
  if (button != nullptr && (event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter)) {
    if (!event->isAutoRepeat()) button->click();
  } else {
    QDialog::keyPressEvent(event);
  }
}
