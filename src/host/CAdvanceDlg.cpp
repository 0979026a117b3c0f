#include "host/CAdvanceDlg.h"

#include <algorithm>
#include <chrono>
#include <iterator>
#include <utility>
#include <vector>

#include <QLayout>
#include <QPushButton>
#include <QScopedValueRollback>
#include <QShortcut>

#include "host/DialogParts.h"
#include "i18n/LocalizeControlTexts.h"
#include "pages/common/CTabPage.h"
#include "pages/common/StatusLine.h"
#include "pages/status/CStatusTabDlg.h"
#include "resources/AdvancedControlResources.h"
#include "resources/TemplateId.h"
#include "settings/CatalogNumbers.h"
#include "settings/ControlId.h"
#include "snapshots/Snapshot.h"
#include "toolkit/CTabCtrl.h"

namespace {

namespace Id = AdvancedControl::ControlId::Advance;

constexpr int kNetworkConnection = 1;

constexpr std::chrono::milliseconds kInputsPeriod{500};

// Dialogs that have made this library's resources current, in the order in which they were opened.
std::vector<CAdvanceDlg*>& OpenDialogs() {
  static std::vector<CAdvanceDlg*> dialogs;
  return dialogs;
}

}  // namespace

CAdvanceDlg::Parts::Parts(CAdvanceDlg& owner)
    : dialog(owner),
      data(owner.projector_),
      pages(owner),
      waiting({.projector = [this]() -> CPjtInterface& { return dialog.projector_; },
               .show = [this](bool waits) { ShowWaiting(waits); },
               .text = [this] { return WaitingText(); },
               .retry = [this] { dialog.DispTabScreen(); },
               .readAgain = [this](bool) { ReadLater(); },
               .idle = [this](bool left) { ShowIdle(left); }}),
      status(waiting.MakeLine(&owner)),
      search(owner, pages),
      strip(*new ProjectorStrip(&owner,
                                [this] {
                                  CTabPage* shown = pages.Shown();
                                  return shown != nullptr ? shown->Reader().SinceRead()
                                                          : ProjectorStrip::Age();
                                })),
      frame(owner) {
  inputsWatch.callOnTimeout(&inputsWatch, [this] { UseReportedInputs(); });
  const auto readAgain = [this] {
    if (!dialog.IsBusy()) dialog.DispTabScreen();
  };
  connect(&strip, &ProjectorStrip::ReadAgain, &waiting, readAgain);
  AddShortcut(QKeySequence::Refresh, readAgain);
  AddShortcut(QKeySequence::Find, [this] {
    if (!dialog.IsCreated()) return;
    search.Start();
    frame.Place(Framed());
  });
  AddShortcut(QKeySequence(Qt::CTRL | Qt::Key_Tab), [this] { pages.SelectNeighbour(1); });
  AddShortcut(QKeySequence(Qt::CTRL | Qt::SHIFT | Qt::Key_Tab),
              [this] { pages.SelectNeighbour(-1); });
  AddShortcut(QKeySequence(Qt::CTRL | Qt::Key_PageDown), [this] { pages.SelectNeighbour(1); });
  AddShortcut(QKeySequence(Qt::CTRL | Qt::Key_PageUp), [this] { pages.SelectNeighbour(-1); });
}

void CAdvanceDlg::Parts::AddShortcut(const QKeySequence& keys, std::function<void()> act) {
  connect(new QShortcut(keys, &dialog), &QShortcut::activated, &waiting, std::move(act));
}

DialogFrame::Parts CAdvanceDlg::Parts::Framed() {
  return {.pages = pages,
          .strip = strip,
          .status = status,
          .find = search.Line(),
          .close = *dialog.GetDlgItem(Id::Close)};
}

void CAdvanceDlg::Parts::SetTitle() {
  const CPjtInterface& projector = dialog.projector_;
  const std::string& name = data.Model().ModelName;
  dialog.setWindowTitle(projector.ConnectionKind() == kNetworkConnection
                            ? CatalogString(kCaptionCategory, Caption::TitleNetwork, name,
                                            projector.ConnectionText1())
                            : CatalogString(kCaptionCategory, Caption::TitleSerial, name,
                                            std::int64_t{projector.ConnectionNumber()} + 1));
}

void CAdvanceDlg::Parts::SetStrip() {
  strip.SetProjector({QString::fromStdString(projectorName),
                      QString::fromStdString(data.Model().ModelName), ConnectionText()});
}

QString CAdvanceDlg::Parts::ConnectionText() const {
  const CPjtInterface& projector = dialog.projector_;
  const std::string& text = projector.ConnectionText1();
  const bool isPath = text.starts_with('/');  // of a serial port, whatever its number
  if (isPath || projector.ConnectionKind() == kNetworkConnection)
    return QString::fromStdString(text);
  return QStringLiteral("COM%1").arg(std::int64_t{projector.ConnectionNumber()} + 1);
}

void CAdvanceDlg::Parts::ShowIdle(bool left) {
  const CPjtInterface::Tally sent = dialog.projector_.Sent();
  if (!left && sent.commands > shownTally.commands) {
    strip.SetAnswers(sent.unanswered == shownTally.unanswered);
  }
  shownTally = sent;
  strip.ShowAge();
  if (!wanted.IsEmpty()) pages.ShowDifferences();
}

void CAdvanceDlg::Parts::ShowWaiting(bool waits) {
  for (CTabPage* page : pages.Created()) {
    page->Reader().ShowWaiting(waits && page == pages.Shown());
  }
}

void CAdvanceDlg::Parts::ReadLater() {
  if (!dialog.IsCreated()) return;
  QTimer::singleShot(0, &dialog, [this] {
    if (dialog.IsCreated()) dialog.DispTabScreen();
  });
}

QString CAdvanceDlg::Parts::WaitingText() const {
  return pages.Shown() != nullptr ? pages.Shown()->Reader().WaitingText()
                                  : CatalogString(kListCategory, ListText::Waiting);
}

CAdvanceDlg::CAdvanceDlg(CWnd* parent)
    : CDialog(TemplateId::Advance, parent), parts_(new Parts(*this)) {}

CAdvanceDlg::~CAdvanceDlg() { Destroy(); }

const ModelData& CAdvanceDlg::Model() const { return parts_->data.Model(); }

void CAdvanceDlg::SetHostOption(bool option) { parts_->hostOption = option; }

void CAdvanceDlg::SetProjectorName(std::string name) { parts_->projectorName = std::move(name); }

std::string CAdvanceDlg::ProjectorName() const { return parts_->projectorName; }

void CAdvanceDlg::SetWanted(const Snapshot& wanted) {
  WantedSettings settings;
  for (const SavedSetting& setting : wanted.settings) {
    settings.Add(setting.key, setting.source, setting.value);
  }
  SetWanted(std::move(settings));
}

void CAdvanceDlg::SetWanted(WantedSettings wanted) {
  parts_->wanted = std::move(wanted);
  for (CTabPage* page : parts_->pages.Created()) page->Reader().ShowNotes();
  parts_->pages.ShowDifferences();
  if (ShownPage() == nullptr || !ShownPage()->Reader().LacksSourceOfWanted()) return;
  IsBusy() ? parts_->waiting.OnStale() : parts_->ReadLater();
}

const WantedSettings* CAdvanceDlg::Wanted() const {
  return parts_->wanted.IsEmpty() ? nullptr : &parts_->wanted;
}

void CAdvanceDlg::SetLastSeen(const Snapshot& seen) {
  parts_->lastSeen.clear();
  for (const SavedSetting& setting : seen.settings) {
    if (!setting.source) parts_->lastSeen.insert_or_assign(setting.key, setting.value);
  }
  parts_->pages.ShowDifferences();
}

std::optional<int> CAdvanceDlg::LastSeen(std::string_view key) const {
  const auto found = parts_->lastSeen.find(key);
  return found == parts_->lastSeen.end() ? std::nullopt : std::optional(found->second);
}

void CAdvanceDlg::SetRatedLampHours(int hours) {
  static_cast<CStatusTabDlg&>(Page(PageId::Status)).SetRatedLampHours(hours);
}

CTabPage* CAdvanceDlg::ShownPage() const { return parts_->pages.Shown(); }

CTabPage& CAdvanceDlg::Page(PageId page) const { return parts_->pages.Page(page); }

QSize CAdvanceDlg::sizeHint() const { return parts_->frame.WholeSize(); }

const NotificationMap& CAdvanceDlg::Notifications() const {
  static const NotificationMap map{
      SelChange(Id::Tabs, &CAdvanceDlg::OnSelchangeAdvanceTab),
  };
  return map;
}

bool CAdvanceDlg::OnInitDialog() {
  parts_->data.UseNext();
  projector_.CutOff(false);
  parts_->savedResources = ResourceChain::SetCurrent(&AdvancedControlResources());
  OpenDialogs().push_back(this);
  LocalizeControlTexts(kCaptionCategory, *this);
  const ModelData& model = Model();
  projector_.HostOption = parts_->hostOption ? 1 : 0;
  projector_.DialogType = model.DialogType;
  projector_.CopyAspectData(model.AspectList.count, model.AspectList.values.data());
  projector_.CopyGammaData(model.GammaList.count, model.GammaList.values.data());
  if (const auto reported = parts_->data.NewReportedInputs()) parts_->data.UseReported(*reported);
  parts_->pages.Create(model, projector_, Item<CTabCtrl>(Id::Tabs));
  parts_->SetTitle();
  parts_->SetStrip();
  parts_->frame.FitToPages(parts_->Framed());
  parts_->pages.OrderFocus({parts_->status.RetryButton(), GetDlgItem(Id::Close)});
  ShowUnread();
  DispTabScreen();
  if (IsCreated() && !parts_->data.NamesInputs()) parts_->inputsWatch.start(kInputsPeriod);
  return true;
}

void CAdvanceDlg::DispTabScreen() {
  parts_->pages.ShowSelected();
  parts_->strip.ShowAge();
  if (parts_->reading || projector_.IsWaiting()) {
    parts_->waiting.OnStale();
    if (!HasPopUp()) Leave();
    return;
  }
  const Busy busy(this);
  const QScopedValueRollback reading(parts_->reading, true);
  do {
    parts_->waiting.TakeStale();
    Return();
    parts_->waiting.RestartTally();
    CTabPage* const shown = ShownPage();
    if (shown != nullptr) {
      shown->ReadPage();
      shown->layout()->activate();
    }
  } while (IsCreated() && parts_->waiting.TakeStale());
}

HandlerWatch& CAdvanceDlg::Watch() { return parts_->waiting; }

void CAdvanceDlg::OnSelchangeAdvanceTab() { DispTabScreen(); }

void CAdvanceDlg::OnOrphaned() { projector_.CutOff(true); }

void CAdvanceDlg::OnDestroy() {
  parts_->inputsWatch.stop();
  parts_->search.Stop();
  auto& open = OpenDialogs();
  const auto self = std::ranges::find(open, this);
  if (self == open.end()) return;
  // The dialog opened after this one has saved this library's module. It has to restore the host's
  // module instead.
  if (const auto next = std::next(self); next != open.end()) {
    (*next)->parts_->savedResources = parts_->savedResources;
  } else {
    ResourceChain::SetCurrent(parts_->savedResources);
  }
  open.erase(self);
}

void CAdvanceDlg::resizeEvent(QResizeEvent* event) {
  CDialog::resizeEvent(event);
  if (parts_->pages.Tabs() != nullptr) parts_->frame.Place(parts_->Framed());
}

void CAdvanceDlg::paintEvent(QPaintEvent*) {
  if (parts_->pages.Tabs() != nullptr) parts_->frame.Paint(parts_->Framed());
}
