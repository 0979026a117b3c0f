#include "fleet/HostNames.h"

#include <chrono>
#include <utility>

namespace AdvancedControl {

namespace {

constexpr std::chrono::minutes kNameLasts{10};
/// Long enough for all attempts of a visit.
constexpr std::chrono::seconds kFailureLasts{3};

SessionTime Now() { return std::chrono::steady_clock::now(); }

}  // namespace

bool HostNames::IsKnown(const std::string& name) const {
  const auto known = known_.find(name);
  if (known == known_.end()) return false;
  const Known& found = known->second;
  return Now() < found.time + (found.addresses.empty() ? kFailureLasts : kNameLasts);
}

std::optional<SocketAddress> HostNames::AddressOf(const std::string& name, std::uint16_t port,
                                                  std::size_t number) const {
  const Known& known = known_.at(name);
  if (known.addresses.empty()) return std::nullopt;
  SocketAddress address = known.addresses[number % known.addresses.size()];
  address.SetPort(port);
  return address;
}

void HostNames::TakeFailure(const std::string& name, std::size_t number) {
  Known& known = known_.at(name);
  if (known.first == number) ++known.first;
}

std::vector<HostNames::Answer> HostNames::Take() {
  std::vector<Answer> answers;
  for (auto& found : resolver_.Take()) {
    known_[found.name] = {std::move(found.addresses), 0, Now()};
    answers.push_back({found.asker, std::move(found.name)});
  }
  return answers;
}

}  // namespace AdvancedControl
