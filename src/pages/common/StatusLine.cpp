#include "pages/common/StatusLine.h"

#include <utility>

#include <QHBoxLayout>
#include <QPushButton>

#include "i18n/LocalizeControlTexts.h"
#include "settings/CatalogNumbers.h"
#include "toolkit/AnnouncedLabel.h"

namespace AdvancedControl {

namespace {

int ProblemNumber(ConnectionState connection) {
  switch (connection) {
    case ConnectionState::WrongParameters:
      return ListText::WrongParameters;
    case ConnectionState::NameUnknown:
      return ListText::AddressUnknown;
    case ConnectionState::NotReachable:
      return ListText::NotReachable;
    case ConnectionState::Lost:
      return ListText::ConnectionLost;
    case ConnectionState::NotUnderstood:
      return ListText::NotUnderstood;
    case ConnectionState::OtherVersion:
      return ListText::OtherVersion;
    case ConnectionState::PasswordRequired:
      return ListText::PasswordRequired;
    default:
      return ListText::NoAnswer;
  }
}

}  // namespace

QString ProblemText(ConnectionState connection) {
  return CatalogString(kListCategory, ProblemNumber(connection));
}

StatusLine::StatusLine(QWidget* parent)
    : QWidget(parent), text_(new AnnouncedLabel), retry_(new QPushButton) {
  retry_->setAutoDefault(false);
  retry_->hide();
  hide();  // hidden from screen readers too while it is empty
  auto* layout = new QHBoxLayout(this);
  layout->setContentsMargins(0, 0, 0, 0);
  layout->addWidget(text_);
  layout->addWidget(retry_);
  layout->addStretch(1);
  connect(retry_, &QPushButton::clicked, this, &StatusLine::Retry);
}

QWidget* StatusLine::RetryButton() const { return retry_; }

void StatusLine::ShowProgress(const QString& text) { Show(text, Tone::Quiet); }

void StatusLine::ShowOutcome(const CPjtInterface& projector, const CPjtInterface::Tally& before) {
  const CPjtInterface::Tally sent = projector.Sent();
  const QString said = std::exchange(said_, QString());
  const Tone tone = std::exchange(isRepeated_, false) ? Tone::Quiet : Tone::Alert;
  shown_.clear();
  if (sent.unanswered > before.unanswered) {
    Show(ProblemText(projector.Connection()), Tone::Alert, true);
  } else if (sent.pending > before.pending) {
    Show(CatalogString(kListCategory, ListText::NotYetSo), Tone::Quiet);
  } else if (sent.busy > before.busy) {
    Show(CatalogString(kListCategory, ListText::NotPossibleNow), Tone::Quiet);
  } else {
    shown_ = said;
    Show(said, tone);
  }
}

void StatusLine::Show(const QString& text, Tone tone, bool canRetry) {
  if (canRetry && retry_->text().isEmpty()) {
    retry_->setText(CatalogString(kListCategory, ListText::Retry));
  }
  retry_->setVisible(canRetry);
  const bool isNews = text != text_->text() || (tone == Tone::Alert && !canRetry);
  if (isNews) tone == Tone::Alert && !text.isEmpty() ? text_->Announce(text) : text_->setText(text);
  setVisible(!text.isEmpty());
}

}  // namespace AdvancedControl
