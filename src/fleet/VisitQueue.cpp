#include "fleet/VisitQueue.h"

#include <algorithm>

namespace AdvancedControl {

void VisitQueue::Add(Peer peer, const Address& address) {
  if (Has(peer)) return;
  const auto line = lines_.try_emplace(address).first;
  const Ticket ticket{++lastNumber_, peer};
  line->second.tickets.push_back(ticket);
  places_.emplace(peer, Place{line, ticket.first});
  CallFirst(line->second);
}

std::optional<VisitQueue::Peer> VisitQueue::Next() {
  if (ready_.empty()) return std::nullopt;
  const Peer peer = ready_.begin()->second;
  ready_.erase(ready_.begin());
  places_.at(peer).line->second.isUsed = true;
  return peer;
}

void VisitQueue::Leave(Peer peer) {
  const auto place = places_.find(peer);
  if (place == places_.end()) return;
  const auto [at, number] = place->second;
  places_.erase(place);
  Line& line = at->second;
  const Ticket ticket{number, peer};
  const auto own = std::ranges::find(line.tickets, ticket);
  if (own == line.tickets.begin()) line.isUsed = false;
  ready_.erase(ticket);
  line.tickets.erase(own);
  CallFirst(line);
  DropIfUnused(at);
}

std::optional<VisitQueue::Peer> VisitQueue::Hold(const Address& address) {
  Line& line = lines_[address];
  ++line.holds;
  if (line.tickets.empty()) return std::nullopt;
  const Ticket first = line.tickets.front();
  ready_.erase(first);
  return line.isUsed ? std::optional(first.second) : std::nullopt;
}

void VisitQueue::Release(const Address& address) {
  const auto line = lines_.find(address);
  if (line == lines_.end() || line->second.holds == 0) return;
  --line->second.holds;
  CallFirst(line->second);
  DropIfUnused(line);
}

void VisitQueue::CallFirst(const Line& line) {
  if (!line.tickets.empty() && !line.isUsed && line.holds == 0) ready_.insert(line.tickets.front());
}

void VisitQueue::DropIfUnused(Lines::iterator line) {
  if (line->second.tickets.empty() && line->second.holds == 0) lines_.erase(line);
}

}  // namespace AdvancedControl
