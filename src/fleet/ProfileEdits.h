#pragma once

#include <cstddef>
#include <vector>

#include <QByteArray>

#include "Namespace.h"
#include "ProjectorFleetExport.h"
#include "fleet/FleetProfile.h"
#include "fleet/JsonEdit.h"

namespace AdvancedControl {

/// Makes many changes to the text of a profile file and keeps the formatting of everything else.
/// The time is proportional to the changes; the text is put together once.
class PROJECTOR_FLEET_EXPORT ProfileEdits {
 public:
  /// `text` must be a profile file without an error, or `kNoProfiles`.
  explicit ProfileEdits(const QByteArray& text);

  /// The text of a file without projectors.
  static const QByteArray kNoProfiles;

  /// The entries of the text and those added. Removed entries are counted, so numbers stay the
  /// same.
  std::size_t Count() const { return entries_.size(); }

  /// Sets members of an entry; an undefined value removes its member.
  void Change(std::size_t projector, const JsonEdit::Members& members);
  /// Adds an entry at the end.
  void Add(const JsonEdit::Members& members);
  void Remove(std::size_t projector) { entries_[projector].isThere = false; }

  /// The new text. If it has no projector, it is not a valid profile file.
  QByteArray Text() const;

 private:
  struct Entry {
    QByteArray before;  // the text between the previous entry and this one
    QByteArray text;
    bool isThere = true;
  };

  QByteArray head_;  // up to the first entry
  QByteArray tail_;
  QByteArray separator_;
  std::vector<Entry> entries_;
};

/// The members of a new entry, with an identity of its own if they have none.
PROJECTOR_FLEET_EXPORT JsonEdit::Members WithIdentity(JsonEdit::Members members);
/// A connection as a profile file has it.
PROJECTOR_FLEET_EXPORT QJsonValue ConnectionValue(const ProfileConnection& connection);
/// The name of a link in a profile file.
PROJECTOR_FLEET_EXPORT QString LinkName(ProjectorLink link);

}  // namespace AdvancedControl
