#include "app/desktop/details/DetailsPanel.h"

#include <algorithm>
#include <utility>

#include <QAction>
#include <QApplication>
#include <QDateTime>
#include <QFrame>
#include <QGridLayout>
#include <QHBoxLayout>
#include <QLabel>
#include <QListWidget>
#include <QLocale>
#include <QMenu>
#include <QProgressBar>
#include <QToolButton>
#include <QVBoxLayout>

#include "app/desktop/projectors/LampDelegate.h"
#include "app/desktop/projectors/StateTexts.h"
#include "toolkit/IsolatedText.h"

namespace {

constexpr int kButtonsInRow = 2;
constexpr int kSignSize = 16;
constexpr int kBarHeight = 6;
constexpr int kPercent = 100;
constexpr int kUsualWidth = 250;
const QString kNothing = QStringLiteral("–");

// Accents reach over the height that a font names, and some letters begin left of their place.
QLabel* WithRoom(QLabel* label) {
  label->setContentsMargins(1, 2, 0, 2);
  return label;
}

// A label aligns its text by the direction of the text, such as a name's, if it is not told to.
QLabel* PlainLabel(const QString& text = {}) {
  auto* label = WithRoom(new QLabel(text));
  label->setAlignment(Qt::AlignVCenter | Qt::AlignAbsolute |
                      (label->isRightToLeft() ? Qt::AlignRight : Qt::AlignLeft));
  label->setTextFormat(Qt::PlainText);
  label->setWordWrap(true);
  label->setObjectName(QStringLiteral("value"));
  return label;
}

// In the direction of the window, whatever script the first part is in.
QString Joined(QStringList parts) {
  if (QApplication::isRightToLeft()) {
    for (QString& part : parts) part = Isolated(part);
    parts.front().prepend(QChar(0x200F));  // right-to-left mark
  }
  return parts.join(QStringLiteral(" · "));
}

QString ModelAndAddress(const FleetProfile& profile) {
  QStringList parts{QString::fromStdString(profile.model->info.ModelName),
                    profile.link == ProjectorLink::Simulated ? DetailsPanel::tr("simulated")
                                                             : ConnectionText(profile.connection)};
  for (const std::string& tag : profile.tags) parts += QString::fromStdString(tag);
  return Joined(parts);
}

QString TimeOf(WallTime time) {
  const auto seconds = std::chrono::floor<std::chrono::seconds>(time).time_since_epoch().count();
  const QDateTime moment = QDateTime::fromSecsSinceEpoch(seconds);
  const bool isToday = moment.date() == QDate::currentDate();
  return isToday ? QLocale().toString(moment.time(), QLocale::ShortFormat)
                 : QLocale().toString(moment, QLocale::ShortFormat);
}

/// Whether a change belongs to the first reading after the start, which only shows the present
/// state.
bool IsOfFirstReading(const StateChange& change, const std::vector<StateChange>& history) {
  const StateChange& first = history.front();
  return first.field == StateField::Reachability &&
         first.before.number == static_cast<int>(Reachability::NeverAsked) &&
         change.time == first.time;
}

/// A source may have one number in the dialog's protocol and another in PJLink.
bool IsSameSource(const StateChange& change, const std::shared_ptr<const ProfileModel>& model) {
  const auto name = [&model](const FieldValue& value) {
    return StateTexts::Source(
        {.source = PlayingSource{.number = *value.number, .name = value.name}}, model);
  };
  return change.field == StateField::Source && name(change.before) == name(change.now);
}

/// Whether a value really changed, and did not only become known or unknown.
bool IsEvent(const StateChange& change, const std::shared_ptr<const ProfileModel>& model) {
  const bool isAlways =
      change.field == StateField::Reachability || change.field == StateField::Power;
  const bool isProblem = change.field == StateField::Problem && change.now.number.value_or(0) > 0;
  const bool isChange = change.before.number && change.now.number && !IsSameSource(change, model);
  return isAlways ? change.now.number.has_value() : isProblem || isChange;
}

}  // namespace

DetailsPanel::DetailsPanel(const QList<QAction*>& actions, QWidget* parent)
    : QWidget(parent),
      name_(PlainLabel()),
      place_(PlainLabel()),
      sign_(new QLabel),
      lamp_(new QProgressBar),
      events_(new QListWidget),
      body_(new QWidget) {
  setAccessibleName(tr("Details"));
  QFont bold = name_->font();
  bold.setBold(true);
  bold.setPointSizeF(bold.pointSizeF() * 1.2);
  name_->setFont(bold);
  auto* head = new QHBoxLayout;
  head->addWidget(sign_, 0, Qt::AlignTop);
  head->addWidget(name_, 1);

  auto* facts = new QGridLayout;
  facts->setColumnStretch(1, 1);
  facts->setVerticalSpacing(2);  // the labels have margins
  // A longer word would take the captions' room.
  constexpr int kLettersOfAWord = 16;
  facts->setColumnMinimumWidth(1, kLettersOfAWord * fontMetrics().averageCharWidth());
  const std::array<QString, FactCount> captions{
      tr("State:"), tr("Power:"),  tr("Source:"),   tr("Problem:"), tr("Picture and sound:"),
      tr("Lamp:"),  tr("Filter:"), tr("Settings:"), tr("Answered:")};
  int line = 0;
  for (std::size_t i = 0; i < facts_.size(); ++i) {
    facts_[i] = PlainLabel();
    auto* caption = WithRoom(new QLabel(captions[i]));
    caption->setBuddy(facts_[i]);
    facts->addWidget(caption, line, 0, Qt::AlignTop);
    facts->addWidget(facts_[i], line++, 1, Qt::AlignTop);
    if (i == Lamp) facts->addWidget(lamp_, line++, 1);
  }
  lamp_->setTextVisible(false);
  lamp_->setMaximumHeight(kBarHeight);
  lamp_->setAccessibleName(tr("Share of the lamp's rated hours"));

  auto* buttons = new QGridLayout;
  for (qsizetype i = 0; i < actions.size(); ++i) {
    auto* button = new QToolButton;
    button->setDefaultAction(actions[i]);
    button->setFocusPolicy(Qt::StrongFocus);
    button->setToolButtonStyle(Qt::ToolButtonTextOnly);
    if (actions[i]->menu() != nullptr) button->setPopupMode(QToolButton::InstantPopup);
    button->setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Fixed);
    const auto place = static_cast<int>(i);
    buttons->addWidget(button, place / kButtonsInRow, place % kButtonsInRow);
  }

  auto* eventsCaption = WithRoom(new QLabel(tr("Rece&nt events")));
  eventsCaption->setBuddy(events_);
  events_->setAccessibleName(tr("Recent events"));
  events_->setItemDelegate(new IsolatedTexts(events_));
  events_->setWordWrap(true);
  events_->setMinimumHeight(events_->fontMetrics().height() * 3);
  events_->setFrameShape(QFrame::NoFrame);

  auto* inner = new QVBoxLayout(body_);
  inner->setContentsMargins(0, 0, 0, 0);
  inner->addLayout(facts);
  inner->addSpacing(6);
  inner->addWidget(eventsCaption);
  inner->addWidget(events_, 1);
  auto* layout = new QVBoxLayout(this);
  layout->setContentsMargins(0, 0, 0, 0);
  layout->addLayout(head);
  layout->addWidget(place_);
  layout->addLayout(buttons);
  layout->addSpacing(6);
  layout->addWidget(body_, 1);
  layout->addStretch();  // while the body is hidden
  setMinimumWidth(std::max(
      {kUsualWidth * 3 / 4, body_->minimumSizeHint().width(), buttons->minimumSize().width()}));
}

void DetailsPanel::Show(const ProjectorRow* row, std::size_t count,
                        const std::vector<StateChange>& history) {
  const bool isOne = row != nullptr;
  body_->setVisible(isOne);
  sign_->setVisible(isOne);
  place_->setVisible(isOne);
  if (!isOne) {
    name_->setText(count == 0 ? tr("No projector selected")
                              : tr("%n projectors selected", nullptr, static_cast<int>(count)));
    return;
  }
  name_->setText(QString::fromStdString(row->profile.name));
  place_->setText(ModelAndAddress(row->profile));
  sign_->setPixmap(StateTexts::Icon(HealthOf(*row)).pixmap(kSignSize));
  ShowFacts(*row);
  ShowHistory(*row, history);
}

void DetailsPanel::ShowFacts(const ProjectorRow& row) {
  const LiveState& state = row.state;
  QStringList switches;
  if (state.blank.value_or(false)) switches += tr("blank");
  if (state.mute.value_or(false)) switches += tr("muted");
  if (state.freeze.value_or(false)) switches += tr("frozen");
  QString switched = switches.join(QStringLiteral(" · "));
  if (switched.isEmpty() && state.blank) switched = tr("shown");
  const int hours = LampHoursOf(state);
  const int rated = row.profile.ratedLampHours;
  QStringList lamps;
  for (const LampState& lamp : state.lamps) lamps += StateTexts::Hours(lamp.hours);
  QString lampText = lamps.join(QStringLiteral(" · "));
  if (hours >= 0 && rated > 0) lampText = tr("%1 of %2").arg(lampText, StateTexts::Hours(rated));
  lamp_->setVisible(hours >= 0 && rated > 0);
  lamp_->setValue(rated > 0 ? std::min(kPercent, hours * kPercent / rated) : 0);
  QPalette bar;
  if (rated > 0)
    bar.setColor(QPalette::Highlight, LampDelegate::Color(static_cast<double>(hours) / rated));
  lamp_->setPalette(bar);
  QString problems = StateTexts::Problems(state);
  if (problems.isEmpty() && state.problems) problems = tr("none");
  const std::array<QString, FactCount> texts{
      StateTexts::State(row),
      StateTexts::Power(state),
      StateTexts::Source(state, row.profile.model),
      problems,
      switched,
      lampText,
      state.filterHours ? StateTexts::Hours(*state.filterHours) : QString(),
      StateTexts::Drift(state),
      StateTexts::Answered(state, std::chrono::system_clock::now())};
  for (std::size_t i = 0; i < texts.size(); ++i)
    facts_[i]->setText(texts[i].isEmpty() ? kNothing : texts[i]);
}

// The newest at the top.
void DetailsPanel::ShowHistory(const ProjectorRow& row, const std::vector<StateChange>& history) {
  QStringList texts;
  for (auto change = history.rbegin(); change != history.rend(); ++change)
    if (IsEvent(*change, row.profile.model) && !IsOfFirstReading(*change, history))
      texts +=
          tr("%1  %2").arg(TimeOf(change->time), StateTexts::Change(*change, row.profile.model));
  if (texts.isEmpty()) texts += tr("nothing yet");
  if (std::exchange(shown_, texts) == texts) return;
  events_->clear();
  events_->addItems(texts);
}
