#include "host/CAdvanceDlg.h"

#include <algorithm>
#include <iterator>
#include <utility>
#include <vector>

#include <QPushButton>
#include <QScopedValueRollback>
#include <QShortcut>
#include <QStyleOptionTabWidgetFrame>
#include <QStylePainter>
#include <QTimer>
#include <QVBoxLayout>

#include "host/FindLine.h"
#include "i18n/LocalizeControlTexts.h"
#include "pages/MakePage.h"
#include "pages/common/CTabPage.h"
#include "pages/common/StatusLine.h"
#include "pages/common/Waiting.h"
#include "pages/status/CStatusTabDlg.h"
#include "resources/AdvancedControlResources.h"
#include "settings/CatalogNumbers.h"
#include "toolkit/CTabCtrl.h"
#include "toolkit/FittedScroll.h"

namespace {

constexpr int kTabControlId = 20001;
constexpr int kCloseId = 1;
constexpr int kTabWidth = 120;
constexpr QPoint kPagePosition{20, 64};
constexpr int kMargin = 12;
constexpr int kFindWidth = 300;

constexpr int kNetworkConnection = 1;

// Dialogs that have made this library's resources current, in the order in which they were opened.
std::vector<CAdvanceDlg*>& OpenDialogs() {
  static std::vector<CAdvanceDlg*> dialogs;
  return dialogs;
}

}  // namespace

struct CAdvanceDlg::Pages {
  std::array<std::unique_ptr<CTabPage>, kPageCount> byId;
};

namespace {

auto MakePages(CWnd* parent) {
  std::array<std::unique_ptr<CTabPage>, kPageCount> pages;
  for (std::size_t i = 0; i < kPageCount; ++i) pages[i] = MakePage(static_cast<PageId>(i), parent);
  return pages;
}

}  // namespace

CAdvanceDlg::CAdvanceDlg(CWnd* parent)
    : CDialog(TemplateId::Advance, parent),
      scroll_(new FittedScroll(new QWidget, this)),
      pages_(new Pages{MakePages(scroll_->widget())}),
      waiting_(new Waiting({.projector = [this]() -> CPjtInterface& { return projector_; },
                            .show = [this](bool waiting) { ShowWaiting(waiting); },
                            .text = [this] { return WaitingText(); },
                            .retry = [this] { DispTabScreen(); }})),
      status_(&waiting_->MakeLine(this)),
      find_(new FindLine(this)),
      inputsWatch_(new QTimer(this)) {
  auto* layout = new QVBoxLayout(scroll_->widget());
  layout->setContentsMargins({});
  inputsWatch_->callOnTimeout(this, &CAdvanceDlg::UseReportedInputs);
  connect(find_, &FindLine::Found, this,
          [this](const FindLine::Place& place) { GoTo(place.tab, place.control, place.popUp); });
  connect(new QShortcut(QKeySequence::Find, this), &QShortcut::activated, this,
          &CAdvanceDlg::StartFinding);
  const auto addShortcut = [this](const QKeySequence& keys, int step) {
    connect(new QShortcut(keys, this), &QShortcut::activated, this,
            [this, step] { SelectNeighbourTab(step); });
  };
  addShortcut(QKeySequence(Qt::CTRL | Qt::Key_Tab), 1);
  addShortcut(QKeySequence(Qt::CTRL | Qt::SHIFT | Qt::Key_Tab), -1);
  addShortcut(QKeySequence(Qt::CTRL | Qt::Key_PageDown), 1);
  addShortcut(QKeySequence(Qt::CTRL | Qt::Key_PageUp), -1);
}

CAdvanceDlg::~CAdvanceDlg() { Destroy(); }

void CAdvanceDlg::DoDataExchange() { tabs_ = &Item<CTabCtrl>(kTabControlId); }

const NotificationMap& CAdvanceDlg::Notifications() const {
  static const NotificationMap map{
      SelChange(kTabControlId, &CAdvanceDlg::OnSelchangeAdvanceTab),
  };
  return map;
}

void CAdvanceDlg::SetRatedLampHours(int hours) {
  static_cast<CStatusTabDlg&>(Page(PageId::Status)).SetRatedLampHours(hours);
}

bool CAdvanceDlg::OnInitDialog() {
  CDialog::OnInitDialog();
  UseIntake();
  projector_.CutOff(false);
  savedResources_ = ResourceChain::SetCurrent(&AdvancedControlResources());
  OpenDialogs().push_back(this);
  LocalizeControlTexts(kCaptionCategory, *this);
  projector_.HostOption = hostOption_ ? 1 : 0;
  projector_.DialogType = model_.DialogType;
  projector_.CopyAspectData(model_.AspectList.count, model_.AspectList.values.data());
  projector_.CopyGammaData(model_.GammaList.count, model_.GammaList.values.data());
  if (const auto reported = NewReportedInputs()) {
    reportedInputs_ = reported;
    model_.MySourceList = *reported;
  }
  CreatePages();
  InsertTabs();
  SetTitle();
  FitToPages();
  OrderFocus();
  ShowUnread();
  DispTabScreen();
  if (IsCreated()) WatchInputs();
  return true;
}

void CAdvanceDlg::CreatePages() {
  CreatePage(PageId::Status);
  for (const PageId page : PagesOf(model_.DialogType)) CreatePage(page);
}

void CAdvanceDlg::CreatePage(PageId id) {
  CTabPage& page = Page(id);
  page.projector = &projector_;
  page.Create();
  page.hide();
  scroll_->widget()->layout()->addWidget(&page);
}

void CAdvanceDlg::InsertTabs() {
  tabs_->SetItemWidth(kTabWidth);
  const auto insert = [this](int caption, PageId page) {
    const QString text = CatalogString(kCaptionCategory, caption);
    tabs_->addTab(text);
    Page(page).setAccessibleName(text);
  };
  const QSignalBlocker quiet(tabs_);  // adding the first tab selects it before the dialog is ready
  insert(Caption::TabStatus, PageId::Status);
  for (const PageTab& tab : TabsOf(model_.DialogType, model_.ModelCode))
    insert(tab.caption, tab.page);
}

void CAdvanceDlg::SetTitle() {
  setWindowTitle(projector_.ConnectionKind() == kNetworkConnection
                     ? CatalogString(kCaptionCategory, Caption::TitleNetwork, model_.ModelName,
                                     projector_.ConnectionText1())
                     : CatalogString(kCaptionCategory, Caption::TitleSerial, model_.ModelName,
                                     std::int64_t{projector_.ConnectionNumber()} + 1));
}

void CAdvanceDlg::FitToPages() {
  std::vector<TemplateDialog*> created;
  for (const auto& page : pages_->byId) {
    if (page->Template() != nullptr) created.push_back(page.get());
  }
  TemplateDialog::ShareCaptionWidths(created);
  QSize pages;
  for (TemplateDialog* page : created) {
    page->setMinimumSize(page->DialogSize());
    pages = pages.expandedTo(page->minimumSize());
  }
  const int width = std::max(tabs_->sizeHint().width() + 2 * kMargin,
                             kPagePosition.x() + pages.width() + kPagePosition.x());
  const int height = kPagePosition.y() + pages.height() + kPagePosition.x() +
                     GetDlgItem(kCloseId)->sizeHint().height() + 2 * kMargin;
  wholeSize_ = {width, height};
  setMinimumSize(wholeSize_ / 3);
  resize(FittedToScreen(*this, wholeSize_));
}

void CAdvanceDlg::OrderFocus() {
  QWidget* last = tabs_;
  for (const auto& page : pages_->byId) {
    if (page->Template() == nullptr) continue;
    for (const RowTemplate& row : page->Template()->rows) {
      for (const ControlTemplate& control : row.controls) {
        QWidget* next = page->GetDlgItem(control.id);
        if (next == nullptr || next->focusPolicy() == Qt::NoFocus) continue;
        setTabOrder(last, next);
        last = next;
      }
    }
  }
  setTabOrder(last, status_->RetryButton());
  setTabOrder(status_->RetryButton(), GetDlgItem(kCloseId));
}

void CAdvanceDlg::DispTabScreen() {
  ShowSelectedPage();
  if (reading_ || projector_.IsWaiting()) {
    readsAgain_ = true;
    if (!HasPopUp()) Leave();
    return;
  }
  const Busy busy(this);
  const QScopedValueRollback reading(reading_, true);
  do {
    readsAgain_ = false;
    Return();
    waiting_->RestartTally();
    if (shownPage_ == nullptr) continue;
    shownPage_->ReadPage();
    if (shownPage_->layout() != nullptr) shownPage_->layout()->activate();
  } while (readsAgain_ && IsCreated());
}

void CAdvanceDlg::ShowSelectedPage() {
  for (const auto& page : pages_->byId) {
    if (page->Template() != nullptr) page->hide();
  }
  shownPage_ = PageOfTab(tabs_->currentIndex());
  if (shownPage_ == nullptr) return;
  shownPage_->Reader().MarkUnread();
  shownPage_->show();
  scroll_->widget()->layout()->activate();
}

void CAdvanceDlg::OnBusy() { waiting_->Begin(); }

void CAdvanceDlg::OnIdle() {
  waiting_->End(IsLeft());
  if (!std::exchange(readsAgain_, false) || !IsCreated()) return;
  QTimer::singleShot(0, this, [this] {
    if (IsCreated()) DispTabScreen();
  });
}

void CAdvanceDlg::OnLeave() { waiting_->Abandon(); }

void CAdvanceDlg::OnReturn() { waiting_->Return(); }

void CAdvanceDlg::ShowWaiting(bool waiting) {
  for (const auto& page : pages_->byId) {
    if (page->Template() != nullptr)
      page->Reader().ShowWaiting(waiting && page.get() == shownPage_);
  }
}

QString CAdvanceDlg::WaitingText() const {
  return shownPage_ != nullptr ? shownPage_->Reader().WaitingText()
                               : CatalogString(kListCategory, ListText::Waiting);
}

std::optional<PageId> CAdvanceDlg::PageIdOfTab(int selection) const {
  const auto tabs = TabsOf(model_.DialogType, model_.ModelCode);
  if (selection == 0) return PageId::Status;
  if (selection < 0 || static_cast<std::size_t>(selection) > tabs.size()) return {};
  return tabs[static_cast<std::size_t>(selection) - 1].page;
}

CTabPage* CAdvanceDlg::PageOfTab(int selection) const {
  const auto page = PageIdOfTab(selection);
  return page ? &Page(*page) : nullptr;
}

void CAdvanceDlg::OnSelchangeAdvanceTab() { DispTabScreen(); }

void CAdvanceDlg::OnOrphaned() { projector_.CutOff(true); }

void CAdvanceDlg::OnDestroy() {
  CDialog::OnDestroy();
  inputsWatch_->stop();
  auto& open = OpenDialogs();
  const auto self = std::ranges::find(open, this);
  if (self == open.end()) return;
  // The dialog opened after this one has saved this library's module. It has to restore the host's
  // module instead.
  if (const auto next = std::next(self); next != open.end()) {
    (*next)->savedResources_ = savedResources_;
  } else {
    ResourceChain::SetCurrent(savedResources_);
  }
  open.erase(self);
}

CTabPage& CAdvanceDlg::Page(PageId page) const {
  return *pages_->byId[static_cast<std::size_t>(page)];
}

void CAdvanceDlg::SelectNeighbourTab(int step) {
  const int count = tabs_ != nullptr ? tabs_->count() : 0;
  if (count == 0) return;
  tabs_->setFocus(Qt::ShortcutFocusReason);
  tabs_->setCurrentIndex((tabs_->currentIndex() + step + count) % count);
}

void CAdvanceDlg::resizeEvent(QResizeEvent* event) {
  CDialog::resizeEvent(event);
  if (tabs_ == nullptr) return;
  const QSize tabs = tabs_->sizeHint();
  tabs_->setGeometry(kMargin, kPagePosition.y() - kMargin - tabs.height(), width() - 2 * kMargin,
                     tabs.height());
  QWidget* close = GetDlgItem(kCloseId);
  const QSize button = close->sizeHint().expandedTo(QSize(90, 0));
  const QRect bottomRight(width() - kMargin - button.width(), height() - kMargin - button.height(),
                          button.width(), button.height());
  const auto place = [this](QWidget& widget, const QRect& at) {
    widget.setGeometry(QStyle::visualRect(layoutDirection(), rect(), at));
  };
  place(*close, bottomRight);
  QRect line(kMargin, bottomRight.top(), bottomRight.left() - 2 * kMargin, bottomRight.height());
  place(*status_, line);
  line.setLeft(std::max(line.left(), line.right() - kFindWidth));
  place(*find_, line);
  scroll_->setGeometry(
      QRect(kPagePosition, QPoint(width(), bottomRight.top()) -
                               QPoint(kPagePosition.x() + 1, kMargin + kPagePosition.x() + 1)));
}

void CAdvanceDlg::paintEvent(QPaintEvent* event) {
  CDialog::paintEvent(event);
  if (tabs_ == nullptr) return;
  QStylePainter painter(this);
  QStyleOptionTabWidgetFrame frame;
  frame.initFrom(this);
  const int top = tabs_->geometry().bottom();
  frame.rect = QRect(kMargin, top, width() - 2 * kMargin,
                     GetDlgItem(kCloseId)->geometry().top() - kMargin - top);
  frame.lineWidth = 1;
  frame.tabBarSize = tabs_->size();
  painter.drawPrimitive(QStyle::PE_FrameTabWidget, frame);
}
