#include "fleet/SearchInquiry.h"

#include <algorithm>
#include <array>
#include <utility>

#include "device/protocol/PjLinkLine.h"

namespace AdvancedControl {

namespace {

constexpr int kMostLost = 2;

struct TextQuestion {
  PjLinkClass protocolClass;
  std::string_view command;
  std::string FoundProjector::*text;
};

constexpr std::array kTexts{
    TextQuestion{PjLinkClass::First, "NAME", &FoundProjector::name},
    TextQuestion{PjLinkClass::First, "INF1", &FoundProjector::maker},
    TextQuestion{PjLinkClass::First, "INF2", &FoundProjector::model},
    TextQuestion{PjLinkClass::Second, "SNUM", &FoundProjector::serial},
};

}  // namespace

std::optional<std::string> ParseSearchAnswer(std::string_view datagram) {
  constexpr std::size_t kLength = 17;
  while (!datagram.empty() && (datagram.back() == '\r' || datagram.back() == '\n' ||
                               datagram.back() == '\0' || datagram.back() == ' ')) {
    datagram.remove_suffix(1);
  }
  const auto line = PjLink::Parse(datagram);
  if (!line || line->separator != '=' || !PjLink::SameWord(line->command, "ACKN")) return {};
  std::string mac = line->parameter;
  if (mac.size() != kLength) return std::nullopt;
  for (std::size_t i = 0; i < kLength; ++i) {
    char& c = mac[i];
    if (c == '-') c = ':';
    if (c >= 'A' && c <= 'F') c = static_cast<char>(c - 'A' + 'a');
    const bool isDigit = (c >= '0' && c <= '9') || (c >= 'a' && c <= 'f');
    if (i % 3 == 2 ? c != ':' : !isDigit) return std::nullopt;
  }
  return mac;
}

SearchInquiry::SearchInquiry(FoundProjector found, const std::string& password,
                             const PjLinkLimits& limits)
    : found_(std::move(found)), session_(password, limits) {}

PjLinkStep SearchInquiry::Next(PjLinkTime now) {
  for (;;) {
    if (isAsking_) {
      PjLinkStep step = session_.Next(now);
      if (step.kind != PjLinkStep::Kind::Finished) return step;
      isAsking_ = false;
      Take(session_.Result());
    }
    const auto question = IsOver() ? std::nullopt : NextQuestion();
    if (!question) return {};
    session_.Begin(*question, now);
    isAsking_ = true;
  }
}

std::optional<PjLinkQuestion> SearchInquiry::NextQuestion() const {
  if (asked_ < kTexts.size()) {
    const TextQuestion& text = kTexts.at(asked_);
    return PjLinkQuestion{text.protocolClass, std::string(text.command)};
  }
  return reportsInputs_ ? inputs_.Next() : std::nullopt;
}

void SearchInquiry::Take(const PjLinkResult& told) {
  if (told.kind == PjLinkResult::Kind::Lost) ++lost_;
  found_.needsPassword = session_.State() == ConnectionState::PasswordRequired;
  hasFound_ = hasFound_ || session_.HasGreeted() || found_.needsPassword;
  found_.protocolClass = session_.ProtocolClass().value_or('1');
  if (asked_ < kTexts.size()) {
    found_.*kTexts.at(asked_).text = told.text;
    ++asked_;
    return;
  }
  if (!inputs_.Take(told)) inputs_.SkipName();
  reportsInputs_ = inputs_.IsListKnown();
  found_.inputs = inputs_.Known();
}

bool SearchInquiry::IsOver() const {
  return found_.needsPassword || lost_ >= kMostLost || (lost_ > 0 && !hasFound_);
}

}  // namespace AdvancedControl
