#pragma once

#include <optional>
#include <string>
#include <vector>

#include <QByteArray>
#include <QJsonObject>

#include "fleet/FleetProfile.h"

/// The projectors of a profile file that one bridge watches.
struct Share {
  int number = 1;  ///< From 1 to `count`.
  int count = 1;
  std::vector<std::string> tags{};  ///< A projector needs one of them; empty for any projector.

  /// Whether the projector belongs to the share. Each identity belongs to one of `count` shares. If
  /// `count` grows by one, only the projectors that move to the new share change.
  bool Has(const FleetProfile& profile) const;
  /// "2-of-5", or "2-of-5-Building_3-5a1be27f.North" with tags. Their order makes no difference.
  QByteArray Name() const;

  friend bool operator==(const Share&, const Share&) = default;
};

/// Parses "2/5". Nothing for any other text, or for more than 1000 shares.
std::optional<Share> ParseShare(const std::string& text);

/// The description of a share in the messages between bridges.
QJsonObject JsonOf(const Share& share);
/// Nothing for an invalid one.
std::optional<Share> ShareOf(const QJsonObject& json);
