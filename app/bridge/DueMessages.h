#pragma once

#include <cstdint>
#include <deque>
#include <optional>
#include <vector>

#include <QByteArray>

/// The messages of one kind, one of each projector: which may be others now, in the order in which
/// that became so, and what the broker has.
class DueMessages {
 public:
  explicit DueMessages(std::size_t projectors) : isDue_(projectors), sent_(projectors) {}

  std::size_t Count() const { return isDue_.size(); }
  /// Whether the projector's message was not due already.
  bool Renew(std::size_t projector);
  /// The broker has lost what was sent.
  void Forget();

  bool IsEmpty() const { return due_.empty(); }
  /// The projector whose turn it is.
  std::size_t First() const { return due_.front(); }
  /// Whether the broker has this already for it.
  bool IsSent(const QByteArray& payload) const;
  /// Nothing more is to be done for it.
  void Pop();
  /// The same, and the broker has this now.
  void Pop(const QByteArray& payload);

 private:
  std::deque<std::size_t> due_;
  std::vector<bool> isDue_;
  std::vector<std::optional<std::uint64_t>> sent_;  ///< Hashes of what the broker has.
};
