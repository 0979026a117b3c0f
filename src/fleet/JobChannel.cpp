#include "fleet/JobChannel.h"

#include <variant>

#include "device/channels/PjLinkChannel.h"
#include "fleet/WireJobChannel.h"

namespace AdvancedControl {

namespace {

class PjLinkJobSocket final : public PjLinkSocket, private JobLoop::Receiver {
 public:
  PjLinkJobSocket(JobLoop& loop, const ProjectorAddress& address, PjLinkConnection& session)
      : session_(session), connection_(loop, address, *this) {}

  bool IsOpen() const override { return connection_.IsOpen(); }
  void Perform(const SessionStep& step) override { connection_.Perform(step); }
  void ReceiveUnsolicited() override { connection_.Check(); }
  void Close() override {
    connection_.Close();
    session_.Closed(std::chrono::steady_clock::now());
  }

 private:
  void Connected() override { session_.Connected(); }
  void NotConnected(ConnectionState problem, SessionTime now) override {
    session_.NotConnected(problem, now);
  }
  void Received(std::string_view bytes, SessionTime now) override { session_.Received(bytes, now); }
  void Closed(SessionTime now) override { session_.Closed(now); }

  PjLinkConnection& session_;
  JobConnection connection_;
};

}  // namespace

std::shared_ptr<ProjectorChannel> MakeJobChannel(JobLoop& loop, const ProjectorAddress& address,
                                                 std::chrono::milliseconds timeOut) {
  if (std::holds_alternative<AddressError>(address)) return MakeUnboundedChannel(address);
  const auto* const pjLink = std::get_if<PjLinkAddress>(&address);
  if (pjLink == nullptr) return std::make_shared<WireJobChannel>(loop, address, timeOut);
  const PjLinkChannel::Limits limits{.connect = timeOut, .answer = timeOut};
  return std::make_shared<PjLinkChannel>(
      pjLink->host, pjLink->port, pjLink->password, limits, [&](PjLinkConnection& session) {
        return std::make_unique<PjLinkJobSocket>(loop, address, session);
      });
}

}  // namespace AdvancedControl
