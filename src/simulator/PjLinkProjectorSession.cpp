#include "simulator/PjLinkProjectorSession.h"

#include <QRandomGenerator>
#include <QString>

#include "device/protocol/PjLinkLine.h"

namespace AdvancedControl {

namespace {

std::string NewSeed() {
  constexpr int kDigits = 8;
  constexpr int kHexadecimal = 16;
  return QString::number(QRandomGenerator::global()->generate(), kHexadecimal)
      .rightJustified(kDigits, QLatin1Char('0'))
      .toStdString();
}

}  // namespace

PjLinkProjectorSession::PjLinkProjectorSession(PjLinkResponder& responder,
                                               std::string_view password)
    : responder_(responder) {
  std::string seed;
  if (!password.empty()) {
    seed = NewSeed();
    wantedProof_ = PjLink::Digest(seed, password);
  }
  greeting_ = PjLink::FormatGreeting(seed) + '\r';
}

void PjLinkProjectorSession::Add(std::string_view bytes) { reader_.Add(bytes); }

std::optional<PjLinkProjectorSession::Exchange> PjLinkProjectorSession::Next() {
  if (isOver_) return std::nullopt;
  auto line = reader_.Next();
  if (!line) {
    isOver_ = reader_.IsTooLong();
    return std::nullopt;
  }
  if (!line->starts_with(wantedProof_)) {
    isOver_ = true;
    return Exchange{{}, std::string(PjLink::kWrongPassword) + '\r'};
  }
  Exchange exchange{line->substr(wantedProof_.size()), {}};
  wantedProof_.clear();
  if (const auto answer = responder_.Answer(exchange.request)) {
    exchange.reply = *answer + '\r';
  } else {
    isOver_ = true;
  }
  return exchange;
}

}  // namespace AdvancedControl
