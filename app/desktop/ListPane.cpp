#include "app/desktop/ListPane.h"

#include <algorithm>
#include <string_view>
#include <unordered_set>
#include <utility>

#include <QAction>
#include <QFrame>
#include <QHBoxLayout>
#include <QLabel>
#include <QPushButton>
#include <QScrollArea>
#include <QScrollBar>
#include <QSplitter>
#include <QVBoxLayout>

#include "app/desktop/Mnemonic.h"
#include "app/desktop/details/DetailsPanel.h"
#include "app/desktop/groups/GroupList.h"
#include "app/desktop/projectors/FleetWatch.h"

namespace {

constexpr int kGap = 9;
constexpr auto kCounting = std::chrono::seconds(1);
constexpr std::size_t kFetchedUnseen = 500;

}  // namespace

ListPane::ListPane(FleetWatch& watch, QWidget* parent)
    : QWidget(parent),
      watch_(watch),
      sides_(new QSplitter),
      groups_(new GroupList),
      view_(new ProjectorView) {
  sides_->addWidget(groups_);
  sides_->addWidget(view_);
  sides_->setStretchFactor(1, 1);
  sides_->setHandleWidth(kGap);
  // A splitter does not mirror its own margins, so a widget around it has them.
  auto* layout = new QVBoxLayout(this);
  layout->setContentsMargins(kGap, kGap, kGap, kGap);
  layout->addWidget(sides_, 1);
  connect(groups_, &GroupList::Chosen, this,
          [this](const ProjectorGroup& group) { view_->Model().SetGroup(group); });
  connect(view_, &ProjectorView::GroupLeft, this, [this] { groups_->Choose({}); });
  connect(view_, &ProjectorView::SelectionChanged, this, &ListPane::ShowDetails);
  // Once a second at most, however many changes there are.
  connect(&counting_, &QTimer::timeout, this, &ListPane::Count);
  counting_.start(kCounting);
}

void ListPane::AddDetails(const QList<QAction*>& actions) {
  details_ = new DetailsPanel(actions);
  auto* scrolled = new QScrollArea;
  scrolled->setWidget(details_);
  scrolled->setWidgetResizable(true);
  scrolled->setFrameShape(QFrame::NoFrame);
  scrolled->setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
  scrolled->setFocusPolicy(Qt::NoFocus);
  scrolled->setMinimumWidth(details_->minimumWidth() +
                            scrolled->verticalScrollBar()->sizeHint().width());
  sides_->addWidget(scrolled);
  detailsArea_ = scrolled;
  ShowDetails();
}

void ListPane::OfferRealOnes(const QList<QAction*>& actions) {
  offer_ = new QFrame;
  auto* text = new QLabel(tr("All these projectors are simulated, for trying the program."));
  text->setTextFormat(Qt::PlainText);
  text->setWordWrap(true);
  auto* line = new QHBoxLayout(offer_);
  line->setContentsMargins(0, 0, 0, 0);
  line->addWidget(text, 1);
  const auto add = [line](const QString& caption) {
    auto* button = new QPushButton(caption);
    line->addWidget(button);
    return button;
  };
  for (QAction* action : actions)
    connect(add(WithoutMnemonic(action->text())), &QPushButton::clicked, action, &QAction::trigger);
  connect(add(tr("Close")), &QPushButton::clicked, offer_, &QWidget::hide);
  static_cast<QVBoxLayout*>(layout())->insertWidget(0, offer_);
}

void ListPane::Show(ProjectorRow& row) const {
  row.isWatched = watch_.IsWatched(row.id);
  if (auto state = watch_.Projectors().State(row.id)) row.state = std::move(*state);
}

void ListPane::SetProfiles(const std::vector<FleetProfile>& profiles) {
  std::vector<ProjectorRow> rows;
  rows.reserve(profiles.size());
  for (const FleetProfile& profile : profiles) {
    ProjectorRow row{.id = FleetIdOf(profile), .profile = profile};
    if (const int before = view_->Model().Find(row.id); before >= 0) {
      const ProjectorRow& known = view_->Model().All()[static_cast<std::size_t>(before)];
      row.isOpen = known.isOpen;
      row.hasAlert = known.hasAlert;
    }
    Show(row);
    rows.push_back(std::move(row));
  }
  view_->SetRows(std::move(rows));
  if (offer_ != nullptr && std::ranges::any_of(profiles, [](const FleetProfile& profile) {
        return profile.link != ProjectorLink::Simulated;
      }))
    offer_->hide();
  Count();
}

void ListPane::Refresh(const std::vector<std::string>& ids) {
  for (const std::string& id : ids) {
    const int position = view_->Model().Find(id);
    if (position >= 0) view_->Model().Change(position, [this](ProjectorRow& row) { Show(row); });
  }
}

void ListPane::MarkAlerts(const std::vector<Alert>& alerts) {
  std::unordered_set<std::string_view> ids;
  for (const Alert& alert : alerts) ids.insert(alert.id);
  const std::vector<ProjectorRow>& rows = view_->Model().All();
  for (std::size_t i = 0; i < rows.size(); ++i) {
    const bool has = ids.contains(rows[i].id);
    if (rows[i].hasAlert != has)
      view_->Model().Change(static_cast<int>(i), [has](ProjectorRow& row) { row.hasAlert = has; });
  }
}

QString ListPane::NameOf(const std::string& id) const {
  const int position = view_->Model().Find(id);
  if (position < 0) return {};
  return QString::fromStdString(
      view_->Model().All()[static_cast<std::size_t>(position)].profile.name);
}

std::vector<const ProjectorRow*> ListPane::Selected() const {
  std::vector<const ProjectorRow*> rows;
  for (const int position : view_->Selected())
    rows.push_back(&view_->Model().All()[static_cast<std::size_t>(position)]);
  return rows;
}

const ProjectorRow* ListPane::OnlySelected() const {
  return view_->SelectedCount() == 1 ? Selected().front() : nullptr;
}

void ListPane::ShowDetails() {
  if (details_ == nullptr) return;
  const ProjectorRow* only = OnlySelected();
  details_->Show(
      only, view_->SelectedCount(),
      only == nullptr ? std::vector<StateChange>() : watch_.Projectors().History(only->id));
}

// The fleet does not report answers that change nothing, so the times of the last answers are
// fetched here: those of the rows in sight each time, and the others in turn, because sorting and
// the status bar need them too.
void ListPane::Count() {
  std::vector<std::string> ids;
  for (const int position : view_->InSight())
    ids.push_back(view_->Model().All()[static_cast<std::size_t>(position)].id);
  if (const ProjectorRow* only = OnlySelected()) ids.push_back(only->id);
  const std::vector<ProjectorRow>& rows = view_->Model().All();
  for (std::size_t i = 0; i < std::min(kFetchedUnseen, rows.size()); ++i) {
    nextFetched_ = (nextFetched_ + 1) % rows.size();
    ids.push_back(rows[nextFetched_].id);
  }
  Refresh(ids);
  view_->Model().Rearrange();
  groups_->Show(rows);
  ShowDetails();
  Q_EMIT Counted(rows);
}

QByteArray ListPane::SaveState() const { return sides_->saveState(); }

bool ListPane::RestoreState(const QByteArray& state) { return sides_->restoreState(state); }

int ListPane::UsualWidth() const {
  constexpr int kGaps = 4 * kGap;  // at both sides and between
  return groups_->sizeHint().width() + view_->UsualWidth() + DetailsWidth() + kGaps;
}

int ListPane::DetailsWidth() const {
  return details_ == nullptr ? 0
                             : std::max(details_->sizeHint().width(), detailsArea_->minimumWidth());
}

void ListPane::Spread(int width) {
  const int left = groups_->sizeHint().width();
  const int right = DetailsWidth();
  sides_->setSizes({left, width - left - right, right});
  view_->FitColumns(view_->UsualWidth() - (UsualWidth() - width));
}
