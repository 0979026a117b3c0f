#pragma once

#include <cstdint>
#include <deque>
#include <optional>
#include <vector>

#include <QByteArray>

/// Keeps which projectors' messages of one kind may have changed, in the order of the changes, and
/// which messages the broker has.
class DueMessages {
 public:
  explicit DueMessages(std::size_t projectors) : isDue_(projectors), sent_(projectors) {}

  std::size_t Count() const { return isDue_.size(); }
  /// Makes the projector's message due. Returns whether it was not due before.
  bool Renew(std::size_t projector);
  /// The broker has lost what was sent.
  void Forget();

  bool IsEmpty() const { return due_.empty(); }
  /// The projector whose message is next.
  std::size_t First() const { return due_.front(); }
  /// The broker may not have got the projector's message; it is due again.
  void Lose(std::size_t projector);
  /// Whether the broker already has this message of that projector.
  bool IsSent(const QByteArray& payload) const;
  /// Its message is no longer due.
  void Pop();
  /// The same; the broker now has this message.
  void Pop(const QByteArray& payload);

 private:
  std::deque<std::size_t> due_;
  std::vector<bool> isDue_;
  std::vector<std::optional<std::uint64_t>> sent_;  ///< Hashes of what the broker has.
};
