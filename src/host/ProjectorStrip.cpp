#include "host/ProjectorStrip.h"

#include <utility>

#include <QHBoxLayout>
#include <QLabel>
#include <QToolButton>

#include "i18n/LocalizeControlTexts.h"
#include "settings/CatalogNumbers.h"
#include "toolkit/Icons.h"
#include "toolkit/IsolatedText.h"
#include "toolkit/LineLabel.h"

namespace AdvancedControl {

namespace {

QString AgeText(std::chrono::milliseconds age) {
  using namespace std::chrono;
  const std::int64_t seconds = duration_cast<std::chrono::seconds>(age).count();
  if (seconds < 2) return CatalogString(kListCategory, ListText::ReadNow);
  if (seconds < 60) return CatalogString(kListCategory, ListText::ReadSeconds, seconds);
  return CatalogString(kListCategory, ListText::ReadMinutes, seconds / 60);
}

}  // namespace

ProjectorStrip::ProjectorStrip(QWidget* parent, std::function<Age()> age)
    : QWidget(parent),
      age_(std::move(age)),
      projector_(new QLabel),
      read_(new QLabel),
      again_(new QToolButton) {
  again_->setIcon(ThemedIcon(IconName::Refresh));
  again_->setIconSize(IconSize(*this));
  again_->setAutoRaise(true);
  again_->setFocusPolicy(Qt::NoFocus);  // F5 does the same
  connect(again_, &QToolButton::clicked, this, &ProjectorStrip::ReadAgain);
  for (QLabel* label : {projector_, read_}) label->setTextFormat(Qt::PlainText);
  projector_->setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Preferred);
  auto* layout = new QHBoxLayout(this);
  layout->setContentsMargins({});
  layout->setSpacing(4);
  layout->addWidget(projector_, 1);
  layout->addWidget(read_);
  layout->addWidget(again_);
  second_.setInterval(std::chrono::seconds(1));
  second_.callOnTimeout(this, &ProjectorStrip::ShowAge);
}

void ProjectorStrip::SetProjector(const QStringList& parts) {
  parts_ = parts;
  parts_.removeAll(QString());
  parts_.removeDuplicates();
  answers_.reset();
  const QString again = CatalogString(kListCategory, ListText::ReadAgain);
  again_->setAccessibleName(again);
  again_->setToolTip(again);
  LineLabel::AlignToStart(*projector_);  // the language is known now
  ShowProjector();
}

void ProjectorStrip::SetAnswers(bool answers) {
  if (std::exchange(answers_, answers) != answers) ShowProjector();
}

QString ProjectorStrip::TextOf(const QStringList& parts) const {
  const QString text = parts.join(QStringLiteral(" \u2014 "));
  if (!answers_) return text;
  return CatalogString(kListCategory, *answers_ ? ListText::Answers : ListText::DoesNotAnswer,
                       text.toStdString());
}

// In a right-to-left language, name, model and address would change places if drawn as one text.
void ProjectorStrip::ShowProjector() {
  QStringList drawn;
  for (const QString& part : parts_) drawn += Isolated(part);
  const QString text = TextOf(drawn);
  layout()->activate();  // the room depends on the text about the reading
  projector_->setText(
      projector_->fontMetrics().elidedText(text, Qt::ElideRight, projector_->width()));
  projector_->setToolTip(projector_->text() == text ? QString() : text);
  projector_->setAccessibleName(TextOf(parts_));
}

void ProjectorStrip::ShowAge() {
  const Age age = age_();
  const QString text = age ? AgeText(*age) : QString();
  if (text == read_->text()) return;
  read_->setText(text);
  ShowProjector();
}

void ProjectorStrip::resizeEvent(QResizeEvent* event) {
  QWidget::resizeEvent(event);
  ShowProjector();
}

void ProjectorStrip::showEvent(QShowEvent* event) {
  QWidget::showEvent(event);
  second_.start();
}

void ProjectorStrip::hideEvent(QHideEvent* event) {
  QWidget::hideEvent(event);
  second_.stop();
}

}  // namespace AdvancedControl
