#include "app/desktop/profiles/ConnectionTest.h"

#include <utility>

#include <QLabel>
#include <QPushButton>
#include <QVBoxLayout>

#include "app/desktop/projectors/StateTexts.h"
#include "fleet/AddressHold.h"
#include "fleet/Fleet.h"
#include "fleet/MakeVisit.h"
#include "fleet/SearchDriver.h"

namespace {

constexpr std::chrono::milliseconds kLook{100};
constexpr const char* kId = "asked";

}  // namespace

ConnectionTest::ConnectionTest(std::function<ProjectorAddress()> address, QWidget* parent)
    : QWidget(parent),
      address_(std::move(address)),
      button_(new QPushButton(tr("&Test Connection"))),
      result_(new QLabel) {
  result_->setTextFormat(Qt::PlainText);
  result_->setWordWrap(true);
  QSizePolicy asWideAsOthers = result_->sizePolicy();
  asWideAsOthers.setHorizontalPolicy(QSizePolicy::Ignored);
  result_->setSizePolicy(asWideAsOthers);
  result_->hide();
  result_->setAccessibleName(tr("Result of the test"));
  auto* layout = new QVBoxLayout(this);
  layout->setContentsMargins({});
  layout->addWidget(button_, 0, Qt::AlignLeft);
  layout->addWidget(result_);
  connect(button_, &QPushButton::clicked, this, &ConnectionTest::Begin);
  connect(&looking_, &QTimer::timeout, this, &ConnectionTest::Look);
}

ConnectionTest::~ConnectionTest() = default;

void ConnectionTest::Clear() {
  looking_.stop();
  fleet_.reset();
  hold_.reset();
  inquiry_.reset();
  Tell({});
  button_->setEnabled(true);
}

void ConnectionTest::Tell(const QString& result) {
  if (result_->text() == result) return;
  result_->setText(result);
  result_->setVisible(!result.isEmpty());
  layout()->activate();  // so that the new size is known
  Q_EMIT Told();
}

void ConnectionTest::Begin() {
  asked_ = address_();
  if (std::holds_alternative<AddressError>(asked_))
    return Tell(tr("There is nothing to connect to."));
  if (std::holds_alternative<SerialAddress>(asked_))
    return Tell(tr("A serial line is tried when its dialog opens."));
  Tell(tr("Asking…"));
  button_->setEnabled(false);
  hold_ = std::make_unique<AddressHold>(PlaceOf({.id = kId, .address = asked_}),
                                        AddressHold::Turn::Next);
  looking_.start(kLook);
}

void ConnectionTest::Look() {
  if (!hold_->IsHeld()) return;
  if (!fleet_) {
    fleet_ = std::make_unique<Fleet>(FleetPolicy{.avoidsHeld = false});
    fleet_->Set({.id = kId, .address = asked_});
  }
  state_ = fleet_->State(kId).value_or(LiveState());
  if (state_.reachability == Reachability::NeverAsked) return;
  looking_.stop();
  fleet_.reset();
  hold_.reset();
  AskWho();
}

// Many projectors accept only one connection at a time, so this follows the question for the state.
// With our own protocol, or at an address that is a host name, nothing is asked.
void ConnectionTest::AskWho() {
  const auto* pjLink = std::get_if<PjLinkAddress>(&asked_);
  const QHostAddress address(pjLink == nullptr ? QString() : QString::fromStdString(pjLink->host));
  if (state_.reachability != Reachability::Answers || address.isNull()) return Show({});
  // The driver calls both from inside itself, where it must not be deleted.
  const auto who = std::make_shared<QStringList>();
  inquiry_ = std::make_unique<SearchDriver>(
      SearchOptions{.addresses = {address}, .port = pjLink->port, .password = pjLink->password},
      [who](const FoundProjector& found) {
        for (const std::string& text : {found.name, found.maker, found.model})
          if (!text.empty()) *who += QString::fromStdString(text);
      },
      [this, who] {
        QMetaObject::invokeMethod(
            this,
            [this, who] {
              if (inquiry_) Show(*who);
            },
            Qt::QueuedConnection);
      });
  inquiry_->Start();
}

void ConnectionTest::Show(const QStringList& who) {
  ProjectorRow row{.id = kId, .profile = {}, .state = state_};
  row.isWatched = true;
  QStringList parts = who;
  for (const QString& part :
       {StateTexts::State(row), StateTexts::Power(state_), StateTexts::Source(state_),
        StateTexts::LampHours(state_), StateTexts::Problems(state_)}) {
    if (!part.isEmpty()) parts += part;
  }
  Clear();
  const bool answers = state_.reachability == Reachability::Answers;
  Tell(answers ? tr("A projector answers: %1").arg(parts.join(QStringLiteral(" · ")))
               : parts.first());
}
