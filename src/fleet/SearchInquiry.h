#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "Namespace.h"
#include "device/protocol/PjLinkInputs.h"
#include "device/protocol/PjLinkSession.h"

namespace AdvancedControl {

/// The question of PJLink's search, which is broadcast.
inline constexpr std::string_view kSearchQuestion = "%2SRCH\r";

/// The MAC number of an answer to it, "00:00:5e:00:53:01"; nothing for any other datagram.
std::optional<std::string> ParseSearchAnswer(std::string_view datagram);

/// A projector that was found. What it did not report is empty.
struct FoundProjector {
  std::string address;  ///< Numeric, IPv4 or IPv6.
  std::uint16_t port = 0;
  std::vector<std::string>
      hostNames{};             ///< Those of the search's host names that mean the address.
  std::string mac{};           ///< From a broadcast search.
  bool needsPassword = false;  ///< It refused the password, and nothing more is known.
  char protocolClass = '1';
  std::string name{};  ///< These are UTF-8.
  std::string maker{};
  std::string model{};
  std::string serial{};
  std::vector<PjLinkInput> inputs{};
};

/// Asks a PJLink projector for its name, maker, model, serial number and inputs. Like a session it
/// has no socket and no clock: a driver performs each step that `Next` returns and reports to
/// `Connection()` what happens, until the inquiry is finished. Then it closes the connection.
class SearchInquiry {
 public:
  SearchInquiry(FoundProjector found, const std::string& password, const PjLinkLimits& limits);

  PjLinkStep Next(PjLinkTime now);
  PjLinkConnection& Connection() { return session_.Connection(); }

  /// Whether a projector has answered.
  bool HasFound() const { return hasFound_; }
  const FoundProjector& Found() const { return found_; }

 private:
  std::optional<PjLinkQuestion> NextQuestion() const;
  void Take(const PjLinkResult& told);
  bool IsOver() const;

  FoundProjector found_;
  PjLinkSession session_;
  std::size_t asked_ = 0;  // of the texts
  PjLinkInputs inputs_;
  bool reportsInputs_ = true;
  bool isAsking_ = false;
  bool hasFound_ = false;
  int lost_ = 0;
};

}  // namespace AdvancedControl
