#include "app/desktop/dialogs/DialogKeeper.h"

#include <algorithm>
#include <utility>

#include <QScreen>
#include <QSettings>
#include <QTabBar>
#include <QThread>

#include "host/CAdvanceDlg.h"
#include "settings/CatalogNumbers.h"

namespace {

constexpr int kGap = 8;
constexpr int kCascade = 28;
constexpr std::size_t kCascadeLength = 8;
constexpr auto kRetirementCheck = std::chrono::milliseconds(50);
constexpr const char* kTabKey = "dialog/tab";

// Each type of dialog has its own geometry, because their sizes differ.
QString GeometryKey(const CAdvanceDlg& dialog) {
  return QStringLiteral("dialog/geometry-%1").arg(dialog.Model().DialogType);
}

// The remembered tab is the number of its caption, because its position differs between models.
std::vector<int> TabCaptions(const CModelInfo2& model) {
  std::vector<int> captions{Caption::TabStatus};
  for (const PageTab& tab : TabsOf(model.DialogType, model.ModelCode)) {
    captions.push_back(tab.caption);
  }
  return captions;
}

int Area(const QRect& rectangle) {
  return rectangle.isValid() ? rectangle.width() * rectangle.height() : 0;
}

}  // namespace

DialogKeeper::DialogKeeper(const QWidget& window, QSettings* settings)
    : window_(window), settings_(settings) {
  deleteRetired_.setSingleShot(true);
  deleteRetired_.setInterval(kRetirementCheck);
  connect(&deleteRetired_, &QTimer::timeout, this, &DialogKeeper::DeleteRetired);
}

DialogKeeper::~DialogKeeper() = default;

CAdvanceDlg* DialogKeeper::Of(const ProjectorSession& session) const {
  const auto found = dialogs_.find(&session);
  return found == dialogs_.end() ? nullptr : found->second.get();
}

CAdvanceDlg* DialogKeeper::Open(const ProjectorSession& session, std::optional<int> tab) {
  CAdvanceDlg* dialog = Of(session);
  if (dialog == nullptr) {
    dialog = (dialogs_[&session] = session.MakeDialog()).get();
    connect(dialog, &QDialog::finished, this, [this, key = &session] { Retire(key); });
    Q_EMIT Opened(&session);
    const CModelInfo2& model = session.Profile().model->info;
    const bool created = dialog->CreateShown([&] {
      Arrange(*dialog);
      SelectTab(*dialog, model, tab);
    });
    if (!created) Retire(&session);
    return Of(session);  // null if it was closed while being read
  }
  dialog->setWindowState(dialog->windowState() & ~Qt::WindowMinimized);
  dialog->show();
  dialog->raise();
  dialog->activateWindow();
  if (tab) dialog->findChild<QTabBar*>()->setCurrentIndex(*tab);
  return Of(session);
}

// Called before anything is read. Later tab changes are the user's.
void DialogKeeper::SelectTab(CAdvanceDlg& dialog, const CModelInfo2& model,
                             std::optional<int> tab) {
  auto* tabs = dialog.findChild<QTabBar*>();
  const QSignalBlocker quiet(tabs);  // the selected page is read afterwards anyway
  if (tab) tabs->setCurrentIndex(*tab);
  if (settings_ == nullptr) return;
  const std::vector<int> captions = TabCaptions(model);
  connect(tabs, &QTabBar::currentChanged, this, [this, captions](int shown) {
    if (shown >= 0) settings_->setValue(kTabKey, captions[static_cast<std::size_t>(shown)]);
  });
  const auto last = std::ranges::find(captions, settings_->value(kTabKey).toInt());
  if (tab || last == captions.end()) return;
  tabs->setCurrentIndex(static_cast<int>(last - captions.begin()));
}

void DialogKeeper::Arrange(CAdvanceDlg& dialog) {
  const bool remembered =
      settings_ != nullptr &&
      dialog.restoreGeometry(settings_->value(GeometryKey(dialog)).toByteArray());
  if (!remembered || dialogs_.size() > 1) Place(dialog);
}

// Each further dialog opens a little apart from the others, towards the centre of the screen.
void DialogKeeper::Place(CAdvanceDlg& dialog) const {
  const QRect screen = window_.screen()->availableGeometry();
  const QRect beside = window_.frameGeometry();
  const QSize frame = beside.size() - window_.size();
  const QSize size = dialog.size() + frame;
  const int right = std::max(screen.left(), screen.right() + 1 - size.width());
  const int bottom = std::max(screen.top(), screen.bottom() + 1 - size.height());
  const auto inside = [&](int x, int y) {
    return QPoint(std::clamp(x, screen.left(), right), std::clamp(y, screen.top(), bottom));
  };
  const QPoint places[] = {
      inside(beside.right() + kGap, beside.top()),
      inside(beside.left() - kGap - size.width(), beside.top()),
      inside(screen.left(), screen.top()),
      inside(right, screen.top()),
      inside(screen.left(), bottom),
      inside(right, bottom),
  };
  const QPoint best = *std::ranges::min_element(
      places, {}, [&](QPoint place) { return Area(QRect(place, size) & beside); });
  const auto others = std::min(dialogs_.size() - 1, kCascadeLength);
  const int apart = kCascade * static_cast<int>(others);
  dialog.move(inside(best.x() + (best.x() == right ? -apart : apart), best.y() + apart));
}

void DialogKeeper::Close(const ProjectorSession& session) {
  if (CAdvanceDlg* dialog = Of(session)) {
    dialog->close();
    if (Of(session) != nullptr) Retire(&session);
  }
}

void DialogKeeper::CloseAll() {
  for (const auto& [session, dialog] : dialogs_) Remember(*dialog);
  retired_.clear();
  dialogs_.clear();
}

void DialogKeeper::UpdateAll() {
  for (const auto& [session, dialog] : dialogs_) session->UpdateDialog(*dialog);
}

void DialogKeeper::RejectAll() {
  std::vector<CAdvanceDlg*> open;
  for (const auto& [session, dialog] : dialogs_) open.push_back(dialog.get());
  for (CAdvanceDlg* dialog : open) dialog->reject();
}

void DialogKeeper::Retire(const ProjectorSession* session) {
  auto dialog = dialogs_.extract(session);
  if (dialog.empty()) return;
  Remember(*dialog.mapped());
  disconnect(dialog.mapped().get(), nullptr, this, nullptr);
  retired_.push_back(std::move(dialog.mapped()));
  deleteRetired_.start();
  Q_EMIT Closed(session);
}

void DialogKeeper::Remember(const CAdvanceDlg& dialog) {
  if (settings_ != nullptr) settings_->setValue(GeometryKey(dialog), dialog.saveGeometry());
}

// The window manager can close a dialog while one of its handlers waits for the projector in a
// nested event loop. That handler still returns into the dialog, so it cannot be deleted yet.
void DialogKeeper::DeleteRetired() {
  if (QThread::currentThread()->loopLevel() > 1) {
    deleteRetired_.start();
  } else {
    retired_.clear();
  }
}
