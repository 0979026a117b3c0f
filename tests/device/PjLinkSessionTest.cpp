// Faults of real PJLink projectors, in simulated time: nothing here waits. Asked.txt is a script of
// what happens, and the record of what follows: what becomes of each command, what it took, and
// what was asked. After an intended change, rewrite it with UPDATE_LISTING=1.

#include <cmath>
#include <functional>
#include <span>

#include "device/CommandCode.h"
#include "device/channels/PjLinkInputInquiry.h"
#include "device/protocol/PjLinkInputs.h"
#include "tests/device/BadProjector.h"
#include "tests/device/Replies.h"
#include "tests/support/Record.h"

namespace {

using Op = PjtOperation;
namespace Code = CommandCode;

/// The lines of a script with what each has led to.
class PlayedSession {
 public:
  explicit PlayedSession(std::istream& script) {
    for (std::string line; std::getline(script, line);) {
      if (line.starts_with("  ")) continue;  // what followed before
      text_ += line + '\n';
      if (line.empty() || line.front() == '#') continue;
      std::istringstream words(line);
      std::string verb;
      name_ = value_ = {};
      words >> verb >> name_;
      std::getline(words >> std::ws, value_);
      verbs_.at(verb)();
    }
  }
  const std::string& Text() const { return text_; }

 private:
  static std::chrono::milliseconds Seconds(const std::string& text) {
    return std::chrono::milliseconds(std::lround(std::stod(text) * 1000));
  }
  static std::string Unescaped(const std::string& letters) {
    std::string text;
    for (const char letter : letters) text += letter == '0' ? '\0' : letter == 'r' ? '\r' : '\n';
    return text;
  }
  BadProjector& It() { return stepped_->projector; }

  void Begin(PjLinkTime::duration answer = SteppedSession::kLimits.answer) {
    stepped_.emplace(std::chrono::duration_cast<std::chrono::milliseconds>(answer));
    power_ = {}, class_ = {}, attempts_ = 0;
    inquiry_.emplace(std::chrono::seconds(10), std::chrono::seconds(30));
  }

  /// What became of it; the state of the connection if it was not answered.
  static std::string Word(const PjtCommand& command, const PjtReply& reply, ConnectionState state) {
    if (reply.unsent) return "unsent, " + std::string(ConnectionStateText(state));
    if (!reply.answered) return std::string(ConnectionStateText(state));
    if (reply.busy) return "busy";
    if (!reply.offered) return "not offered";
    if (!IsSuccess(command.operation, reply.result)) return "refused";
    if (reply.pending) return "pending";
    return IsRead(command.operation) ? std::to_string(static_cast<std::uint16_t>(reply.value))
                                     : "done";
  }

  void Do(const PjtCommand& command) {
    const auto begin = stepped_->now;
    const PjtReply reply = stepped_->Do(command);
    Tell(Word(command, reply, stepped_->session.State()), begin);
  }

  void Ask() {
    const auto begin = stepped_->now;
    const PjLinkResult result = stepped_->Ask(*PjLinkInputs::NameOf(std::stoi(name_)));
    Tell("'" + result.text + "'", begin);
  }

  /// Asks for inputs as long as there is a question.
  void Learn() {
    const auto begin = stepped_->now;
    inquiry_->Report();
    while (const auto question = inquiry_->NextQuestion(stepped_->now))
      inquiry_->Take(stepped_->Ask(*question), stepped_->now);
    const SourceList shown = inquiry_->Report().value_or(SourceList());
    std::string told = inquiry_->AllInputs().empty() ? "not all" : "all";
    for (const NameSlot& name : std::span(shown.names).first(static_cast<std::size_t>(shown.count)))
      (told += ", ") += NameText(name);
    Tell(told, begin);
  }

  void Tell(const std::string& word, PjLinkTime begin) {
    static constexpr const char* kPowers[] = {"standby", "on", "cooling down", "warming up"};
    std::ostringstream told;
    told << "  " << word << ": " << It().TakeRequests() << " ("
         << std::chrono::duration<double>(stepped_->now - begin).count() << " s";
    const int attempts = It().attempts - std::exchange(attempts_, It().attempts);
    if (attempts > 0) told << ", connects " << attempts;
    const auto power = stepped_->session.Power();
    if (std::exchange(power_, power) != power && power)
      told << ", " << kPowers[static_cast<int>(*power)];
    const auto protocolClass = stepped_->session.ProtocolClass();
    if (std::exchange(class_, protocolClass) != protocolClass && protocolClass)
      told << ", class " << *protocolClass;
    text_ += told.str() + ")\n";
  }

  const std::map<std::string_view, std::uint16_t> codes_{
      {"input", Code::InputSource}, {"power", Code::RunningState}, {"lamp", Code::LampTime},
      {"mute", Code::Mute},         {"freeze", Code::Freeze},      {"blank", Code::BlankState},
      {"tint", Code::Tint}};
  const std::map<std::string_view, std::function<void()>> verbs_{
      {"==", [&] { Begin(), stepped_->session.RememberClass('2'); }},
      {"unknown", [&] { Begin(); }},
      {"patient", [&] { Begin(Seconds(name_)); }},
      {"keeps", [&] { stepped_->session.KeepNext(); }},
      {"wait", [&] { stepped_->now += Seconds(name_); }},
      {"says", [&] { (It().states.contains(name_) ? It().states : It().facts)[name_] = value_; }},
      {"lacks", [&] { It().states.erase(name_); }},
      {"lacks-all", [&] { It().facts = It().states = {}; }},
      {"loses", [&] { It().loses[name_] = std::stoi(value_); }},
      {"drops", [&] { It().loses[name_] = std::stoi(value_), It().dropsUnanswered = true; }},
      {"distorts", [&] { It().distorts[name_] = std::stoi(value_); }},
      {"refuses", [&] { It().refuses[name_] = std::stoi(value_); }},
      {"follows", [&] { It().follows = Seconds(name_); }},
      {"answers", [&] { It().answers = Seconds(name_); }},
      {"hasty", [&] { It().CloseEachTime(Seconds(name_)); }},
      {"leaves", [&] { It().closesAfterReply = Seconds(name_); }},
      {"away",
       [&] {
         It().gap = Seconds(name_);
         It().Connect(stepped_->now);
         It().Close(stepped_->now);
         attempts_ = It().attempts;
       }},
      {"greets", [&] { It().greeting = name_.empty() ? "" : name_ + ' ' + value_ + '\r'; }},
      {"wraps",
       [&] {
         It().before = name_ == "-" ? "" : Unescaped(name_), It().after = Unescaped(value_);
         It().greeting = It().before + "PJLINK 0" + It().after;
       }},
      {"class", [&] { It().replyClass = name_[0]; }},
      {"ask", [&] { Ask(); }},
      {"inputs", [&] { Learn(); }},
      {"get", [&] { Do(Get(codes_.at(name_))); }},
      {"input", [&] { Do(Set(Code::InputSource, std::stoi(name_))); }},
      {"mute", [&] { Do(::Do(Op::SetMute, std::stoi(name_))); }},
      {"freeze", [&] { Do(::Do(Op::SetFreeze, std::stoi(name_))); }},
      {"on", [&] { Do(::Do(Op::SetPowerOn)); }},
      {"off", [&] { Do(::Do(Op::SetPowerOff)); }},
      {"louder", [&] { Do(Inc(Code::Volume)); }},
  };
  std::string text_;
  std::string name_, value_;  ///< Of the present line.
  std::optional<SteppedSession> stepped_;
  std::optional<PjLinkInputInquiry> inquiry_;
  std::optional<PowerState> power_;
  std::optional<char> class_;
  int attempts_ = 0;
};

TEST(PjLinkSession, AsksAndAnswersAsRecorded) {
  const char* const file = TEST_SOURCE_DIR "/device/Asked.txt";
  std::ifstream script(file);
  ExpectRecord(file, PlayedSession(script).Text());
}

TEST(PjLinkSession, LearnsNamesOfAnyLengthThatTheListShortens) {
  SteppedSession lost;
  lost.projector.facts["INNM31"] = std::string(1500, 'x');
  EXPECT_EQ(lost.Ask(*PjLinkInputs::NameOf(31)).text.size(), 1500);
  const SourceList two =
      SourcesOf({{31, "HDMI"}, {510, std::string(99, 'x')}}, InputCodes::AllNames);
  EXPECT_EQ(NameText(two.names[1]), std::string(59, 'x') + " (5A)");
  EXPECT_EQ(std::pair(two.firstValues[1], two.secondValues[1]), std::pair(510, 510));
}

}  // namespace
