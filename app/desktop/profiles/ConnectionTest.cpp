#include "app/desktop/profiles/ConnectionTest.h"

#include <utility>

#include <QHBoxLayout>
#include <QLabel>
#include <QPushButton>

#include "app/desktop/projectors/StateTexts.h"
#include "fleet/Fleet.h"

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
  result_->setAccessibleName(tr("Result of the test"));
  auto* layout = new QHBoxLayout(this);
  layout->setContentsMargins({});
  layout->addWidget(button_);
  layout->addWidget(result_, 1);
  connect(button_, &QPushButton::clicked, this, &ConnectionTest::Begin);
  connect(&looking_, &QTimer::timeout, this, &ConnectionTest::Look);
}

ConnectionTest::~ConnectionTest() = default;

void ConnectionTest::Clear() {
  looking_.stop();
  fleet_.reset();
  result_->clear();
  button_->setEnabled(true);
}

void ConnectionTest::Begin() {
  const ProjectorAddress address = address_();
  if (std::holds_alternative<AddressError>(address))
    return result_->setText(tr("There is nothing to connect to."));
  if (std::holds_alternative<SerialAddress>(address))
    return result_->setText(tr("A serial line is tried when its dialog opens."));
  result_->setText(tr("Asking…"));
  button_->setEnabled(false);
  fleet_ = std::make_unique<Fleet>();
  fleet_->Set({.id = kId, .address = address});
  looking_.start(kLook);
}

void ConnectionTest::Look() {
  ProjectorRow row{.id = kId, .profile = {}};
  row.isWatched = true;
  row.state = fleet_->State(kId).value_or(LiveState());
  if (row.state.reachability == Reachability::NeverAsked) return;
  QStringList parts{StateTexts::State(row)};
  for (const QString& part : {StateTexts::Power(row.state), StateTexts::Source(row.state),
                              StateTexts::LampHours(row.state), StateTexts::Problems(row.state)}) {
    if (!part.isEmpty()) parts += part;
  }
  Clear();
  const bool answers = row.state.reachability == Reachability::Answers;
  result_->setText(answers ? tr("A projector answers: %1").arg(parts.join(QStringLiteral(" · ")))
                           : parts.first());
}
