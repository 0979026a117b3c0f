#include "device/protocol/PjLinkExchange.h"

#include "device/protocol/PjLinkLine.h"

namespace AdvancedControl {

void PjLinkExchange::Start(PjLinkRequest request, std::chrono::milliseconds time) {
  request_ = std::move(request);
  answerTime_ = time;
  answer_ = {};
  sawNoise_ = false;
  mayRepeat_ = IsQuestion();
}

bool PjLinkExchange::IsQuestion() const { return request_.parameter.starts_with(PjLink::kQuery); }

std::string PjLinkExchange::Send() {
  answer_.sent = true;
  return PjLink::Format({request_.protocolClass, request_.command, ' ', request_.parameter}) + '\r';
}

PjLinkExchange::Line PjLinkExchange::Take(const std::string& line) {
  auto reply = PjLink::Parse(line);
  const bool isReply = reply && reply->separator == '=';
  if (isReply && PjLink::SameWord(reply->command, request_.command)) {
    answer_.parameter = std::move(reply->parameter);
    return Line::Answer;
  }
  if (PjLink::SameWord(line, PjLink::kWrongPassword)) {
    answer_.sent = false;  // without the password the projector carries nothing out
    return Line::PasswordRefused;
  }
  if (isReply) return Line::OtherReply;
  sawNoise_ = true;
  return Line::Noise;
}

ConnectionState PjLinkExchange::Silence() const {
  return sawNoise_ ? ConnectionState::NotUnderstood : ConnectionState::NoAnswer;
}

}  // namespace AdvancedControl
